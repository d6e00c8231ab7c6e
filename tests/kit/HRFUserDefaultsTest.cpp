#include "kit/HRFUserDefaults.h"

#include "kit/HRFAssert.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <thread>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString versionKey = u"lirra.tagging.ID3v2Version"_s;
const QString apeKey = u"lirra.tagging.MPEG.APE"_s;

class HRFUserDefaultsTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString writeFile(const QByteArray &contents, const QString &name = u"given.ini"_s) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
        return file.fileName();
    }

    QTemporaryDir m_folder;
    const QString m_file = path(u"new/lirra.ini"_s);
};

/// Notes the keys whose change is told.
class ChangeNotes
{
public:
    explicit ChangeNotes(const HRFUserDefaults &defaults)
    {
        QObject::connect(
            &defaults, &HRFUserDefaults::valueChanged, &defaults,
            [this, &defaults](const QString &key) {
                // Would wait for ever if the signal came under the mutex.
                m_notes.push_back(
                    (key + u'=' + defaults.stringForKey(key).value_or(QString())).toStdString());
            });
    }

    std::vector<std::string> take() { return std::exchange(m_notes, {}); }

private:
    std::vector<std::string> m_notes;
};

} // namespace

TEST_F(HRFUserDefaultsTest, LooksInOverridesThenTheFileThenTheDefaultsAndTellsChanges)
{
    HRFUserDefaults defaults(m_file);
    ChangeNotes notes(defaults);
    EXPECT_EQ(defaults.stringForKey(versionKey), u"48"_s);
    defaults.setValueForKey(48, versionKey);
    EXPECT_THAT(notes.take(), IsEmpty());
    defaults.setOverride(4, versionKey);
    EXPECT_THAT(notes.take(), ElementsAre("lirra.tagging.ID3v2Version=4"));
    defaults.setValueForKey(3, versionKey);
    EXPECT_THAT(notes.take(), IsEmpty());
    defaults.setOverride({}, versionKey);
    EXPECT_THAT(notes.take(), ElementsAre("lirra.tagging.ID3v2Version=3"));
    defaults.setValueForKey({}, versionKey);
    EXPECT_THAT(notes.take(), ElementsAre("lirra.tagging.ID3v2Version=48"));
    defaults.setValueForKey(u""_s, u"lirra.unknown"_s);
    EXPECT_THAT(notes.take(), ElementsAre("lirra.unknown="));
    EXPECT_TRUE(defaults.hasDefaultForKey(versionKey));
    EXPECT_FALSE(defaults.hasDefaultForKey(u"lirra.unknown"_s));
    EXPECT_TRUE(defaults.defaultKeys().contains(versionKey));
    EXPECT_FALSE(defaults.defaultKeys().contains(u"lirra.unknown"_s));
}

TEST_F(HRFUserDefaultsTest, ConvertsValues)
{
    using Limits = std::numeric_limits<qlonglong>;
    // clang-format off
    const std::tuple<QVariant, qlonglong, bool> cases[] = {
        {{}, 0, false}, {true, 1, true}, {false, 0, false}, {48, 48, true}, {-1, -1, true},
        {2.9, 2, true}, {-0.5, 0, false}, {1e300, Limits::max(), true}, {u""_s, 0, false},
        {u"48abc"_s, 48, true}, {u" -48 "_s, -48, true}, {u"+5"_s, 5, true}, {u"+-5"_s, 0, false},
        {u"abc48"_s, 0, false}, {u"0.9"_s, 0, false}, {u"YES"_s, 0, true}, {u"yes!"_s, 0, false},
        {u"tRue"_s, 0, true}, {u"on"_s, 0, false},
        {u"9223372036854775808"_s, Limits::max(), true},
        {u"-9223372036854775809"_s, Limits::min(), true}};
    // clang-format on
    HRFUserDefaults defaults(m_file);
    for (const auto &[value, integer, isTrue] : cases) {
        defaults.setOverride(value, u"key"_s);
        EXPECT_EQ(defaults.integerForKey(u"key"_s), integer) << value.toString().toStdString();
        EXPECT_EQ(defaults.boolForKey(u"key"_s), isTrue) << value.toString().toStdString();
        EXPECT_EQ(defaults.stringForKey(u"key"_s).has_value(), value.isValid());
    }
}

TEST_F(HRFUserDefaultsTest, ReadsAFileWrittenByHand)
{
    const QString file = writeFile("[General]\n"
                                   "lirra.tagging.ID3v2Version=3\n"
                                   "lirra.tagging.MPEG.APE=yes\n"
                                   "lirra.tagging.RIFF.INFO=\n"
                                   "list=5, six\n"
                                   "void=@Invalid()\n"
                                   "[window]\n"
                                   "width=640\n");
    const HRFUserDefaults defaults(file);
    EXPECT_EQ(defaults.integerForKey(versionKey), 3);
    EXPECT_TRUE(defaults.boolForKey(apeKey));
    EXPECT_FALSE(defaults.boolForKey(u"lirra.tagging.RIFF.INFO"_s));
    EXPECT_EQ(defaults.stringForKey(u"list"_s), u"5, six"_s);
    EXPECT_EQ(defaults.stringForKey(u"void"_s), std::nullopt);
    EXPECT_EQ(defaults.integerForKey(u"window/width"_s), 640);
}

TEST_F(HRFUserDefaultsTest, ReadsBackWhatItWrote)
{
    const QVariant values[] = {
        true, false, 5, -2.5, u""_s, u"a, b"_s, u" ä;=\"\\\n"_s, u"@Invalid()"_s, u"[x]"_s};
    HRFUserDefaults before(m_file);
    for (const QVariant &value : values) {
        before.setValueForKey(value, apeKey);
        // QSettings remembers the values, with their types, of files that it knows by name.
        const QTemporaryDir folder;
        const QString copy = folder.filePath(u"copy.ini"_s);
        ASSERT_TRUE(QFile::copy(m_file, copy));
        const HRFUserDefaults after(copy);
        EXPECT_EQ(after.stringForKey(apeKey), before.stringForKey(apeKey));
        EXPECT_EQ(after.integerForKey(apeKey), before.integerForKey(apeKey));
        EXPECT_EQ(after.boolForKey(apeKey), before.boolForKey(apeKey));
    }
}

TEST_F(HRFUserDefaultsTest, TellsTheChangesThatAnotherFileBrings)
{
    HRFUserDefaults defaults(writeFile("lirra.tagging.ID3v2Version=3\nsame=1\n"));
    defaults.setOverride(true, apeKey);
    ChangeNotes notes(defaults);
    defaults.setFilePath(writeFile("lirra.tagging.MPEG.APE=false\nsame=1\n", u"other.ini"_s));
    EXPECT_THAT(notes.take(), ElementsAre("lirra.tagging.ID3v2Version=48"));
    defaults.setOverride({}, apeKey);
    EXPECT_FALSE(defaults.boolForKey(apeKey));
}

TEST_F(HRFUserDefaultsTest, UsesTheUsersOwnFileByDefault)
{
    const QByteArray previous = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_folder.path()));
    HRFUserDefaults().setValueForKey(3, versionKey);
    EXPECT_TRUE(QFile::exists(path(u"lirra/lirra.ini"_s)));
    HRFUserDefaults defaults(m_file);
    defaults.setFilePath({});
    EXPECT_EQ(defaults.integerForKey(versionKey), 3);
    previous.isNull() ? qunsetenv("XDG_CONFIG_HOME") : qputenv("XDG_CONFIG_HOME", previous);
}

TEST_F(HRFUserDefaultsTest, KeepsAValueThatCannotBeWritten)
{
    static QStringList messages;
    messages.clear();
    // A folder cannot be made where a file is.
    HRFUserDefaults defaults(writeFile({}, u"blocked"_s) + "/lirra.ini"_L1);
    const auto previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { messages += text; });
    defaults.setValueForKey(3, versionKey);
    qInstallMessageHandler(previous);
    EXPECT_EQ(messages.size(), 1);
    EXPECT_EQ(defaults.integerForKey(versionKey), 3);
    // These would remove all keys.
    for (const QString &key : {u""_s, u"/"_s})
        EXPECT_THROW(defaults.setValueForKey({}, key), HRFAssertionFailure);
}

TEST_F(HRFUserDefaultsTest, ServesSeveralThreads)
{
    HRFUserDefaults defaults(m_file);
    const auto work = [&defaults](int number) {
        const QString key = u"key%1"_s.arg(number);
        for (int i = 0; i <= 20; ++i) {
            defaults.setOverride(i, apeKey);
            defaults.setValueForKey(i, key);
            EXPECT_EQ(defaults.integerForKey(key), i);
        }
    };
    std::vector<std::jthread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number)
        threads.emplace_back(work, number);
    threads.clear();
    const HRFUserDefaults reread(m_file);
    for (int number = 0; number < 4; ++number)
        EXPECT_EQ(reread.integerForKey(u"key%1"_s.arg(number)), 20);
}
