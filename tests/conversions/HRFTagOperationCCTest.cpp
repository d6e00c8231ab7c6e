#include "conversions/HRFTagOperationCC.h"

#include "conversions/HRFNumberParser.h"
#include "conversions/HRFRecordValues.h"
#include "conversions/HRFTestPatterns.h"
#include "operations/HRFProgress.h"
#include "store/HRFMetaTags.h"

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

/// A list whose files are all selected at first.
class TestList : public HRFConversionHost
{
public:
    explicit TestList(HRFMainContext &context) : m_context(context) { }

    std::vector<HRFMetaFile *> selectedFiles() const override { return arrangedFiles(); }
    std::vector<HRFMetaFile *> arrangedFiles() const override
    {
        return m_context.fetch<HRFMetaFile>();
    }
    void setSelectedFiles(const std::vector<HRFMetaFile *> &files) override { selected = files; }
    void setUndoActionName(const QString &name) override { m_context.setUndoActionName(name); }
    void performBlockInBackgroundContext(std::function<void(HRFPrivateContext &)>, bool,
                                         std::function<void()>) override
    {
        FAIL() << "Tags are edited in the main context";
    }

    std::vector<HRFMetaFile *> selected;

private:
    HRFMainContext &m_context;
};

class HRFTagOperationCCTest : public HRFRecordTest
{
protected:
    HRFTagOperationCCTest() { progress.setLocalizedDescription(u"Convert to Tags"_s); }

    HRFMetaFile &named(const QString &name) { return record({{"fileInfo.fileName", name}}); }
    QVariant value(const HRFMetaFile &file, const QString &tag) const
    {
        return file.tags().valueForKey(tag);
    }
    HRFConversionOutcome tag(const QString &pattern, HRFRegexMode mode = HRFRegexMode::Off)
    {
        context.processPendingChanges();
        HRFConversionOutcome outcome = controller.tagFilesByMatchingPattern(
            HRFPattern(HRFTestElements(pattern)), HRFTestAttribute(u"fileInfo.fileName"_s), mode,
            progress);
        context.processPendingChanges();
        return outcome;
    }
    HRFConversionOutcome compose(const QString &pattern, const QString &keyPath)
    {
        context.processPendingChanges();
        HRFConversionContext empty;
        empty.fallbackAction = HRFConversionContext::fallbackEmpty;
        HRFConversionOutcome outcome = controller.composeTagWithPattern(
            HRFPattern(HRFTestElements(pattern), empty), HRFTestAttribute(keyPath), progress);
        context.processPendingChanges();
        return outcome;
    }

    TestList list{context};
    HRFTagOperationCC controller{list};
    HRFProgress progress{3};
};

TEST_F(HRFTagOperationCCTest, TagsWhatMatchesAndSelectsTheRest)
{
    const HRFMetaFile &first = named(u"07 - Intro.mp3"_s);
    const HRFMetaFile &other = named(u"Outro.mp3"_s);
    const HRFConversionOutcome outcome = tag(u"%trackNumber% - %title%"_s);
    EXPECT_TRUE(outcome.hasChangedFiles);
    EXPECT_EQ(value(first, u"trackNumber"_s), 7);
    EXPECT_EQ(value(first, u"title"_s), u"Intro"_s);
    EXPECT_FALSE(value(other, u"title"_s).isValid());
    EXPECT_THAT(list.selected, ElementsAre(&other));
    const HRFError error = outcome.error.value_or(HRFError());
    EXPECT_EQ(error.code, 1);
    EXPECT_EQ(error.description, u"Convert to Tags: Failed"_s);
    EXPECT_EQ(progress.completedUnitCount(), 1);
    EXPECT_FALSE(progress.isCancellable());
    EXPECT_EQ(context.undoManager().undoText(), u"Convert to Tags"_s);
    context.undo();
    EXPECT_FALSE(value(first, u"title"_s).isValid());
    EXPECT_FALSE(value(first, u"trackNumber"_s).isValid());
}

TEST_F(HRFTagOperationCCTest, InvalidAndEndlessExpressionsChangeNothing)
{
    const HRFMetaFile &file = named(QString(50, u'a') + u"b.mp3"_s);
    context.processPendingChanges();
    context.removeAllUndoActions();
    for (const QString &pattern : {u"[%title%"_s, u"(a+)+$%title%"_s}) {
        const HRFConversionOutcome outcome = tag(pattern, HRFRegexMode::On);
        EXPECT_FALSE(outcome.hasChangedFiles);
        EXPECT_TRUE(outcome.error);
        EXPECT_FALSE(value(file, u"title"_s).isValid());
    }
    EXPECT_FALSE(context.undoManager().canUndo());
}

/// Values arrive in the type of their attribute, or not at all; facts of the file are no tags.
TEST_F(HRFTagOperationCCTest, ValuesHaveTheTypesOfTheirAttributes)
{
    const HRFMetaFile &file = named(u"2004-05-06 yes 12.mp3"_s);
    EXPECT_FALSE(tag(u"%releaseTime% %isPodcast% %fileSize%"_s).error);
    EXPECT_EQ(value(file, u"releaseTime"_s), QDateTime(QDate(2004, 5, 6), {}, Qt::UTC));
    EXPECT_EQ(value(file, u"isPodcast"_s), true);
    EXPECT_FALSE(HRFRecordValues(file).valueForKeyPath(u"fileInfo.fileSize"_s).isValid());
    EXPECT_FALSE(tag(u"%title% %releaseTime%"_s).hasChangedFiles);
    EXPECT_FALSE(value(file, u"title"_s).isValid());
}

TEST_F(HRFTagOperationCCTest, ComposesUntilANumberIsNone)
{
    const struct
    {
        QString comment, error;
        QVariant year;
    } rows[] = {
        {u"1999"_s, {}, 1999},
        {u"007"_s, {}, 7},
        {u"12.75"_s, {}, 12},
        {u"2147483000"_s, {}, 2147483000},
        {{}, {}, {}}, // nothing clears
        {u"2147483648"_s, u"Number is too big"_s, 1},
        {u"2147483647"_s, u"Number is too big"_s, 1}, // in single precision it is
        {u"nineteen"_s, u"Number could not be parsed"_s, 1},
        {u"12 songs"_s, u"Number could not be parsed"_s, 1},
        {u"1,000"_s, u"Number could not be parsed"_s, 1},
        {u" "_s, u"Number could not be parsed"_s, 1},
    };
    for (const auto &row : rows) {
        const HRFMetaFile &file = record({{"tags.comment", row.comment}, {"tags.year", 1}});
        const HRFMetaFile &next = record({{"tags.comment", u"5"_s}, {"tags.year", 1}});
        const HRFConversionOutcome outcome = compose(u"%comment%"_s, u"tags.year"_s);
        EXPECT_EQ(outcome.error.value_or(HRFError()).description, row.error);
        EXPECT_EQ(outcome.error ? outcome.error->code : -1, -1);
        EXPECT_EQ(value(file, u"year"_s), row.year) << row.comment.toStdString();
        EXPECT_EQ(value(next, u"year"_s), outcome.error ? 1 : 5);
        EXPECT_EQ(outcome.hasChangedFiles, !outcome.error);
        context.deleteObjectsForEntityName(HRFMetaFile::entityName());
    }
}

TEST_F(HRFTagOperationCCTest, ComposingIsOneUndoActionAndCanBeCancelled)
{
    const HRFMetaFile &file =
        record({{"tags.artist", u"A"_s}, {"tags.title", u"T"_s}, {"properties.bitDepth", 16}});
    EXPECT_TRUE(compose(u"%artist% - %title%"_s, u"tags.comment"_s).hasChangedFiles);
    EXPECT_EQ(value(file, u"comment"_s), u"A - T"_s);
    EXPECT_EQ(context.undoManager().undoText(), u"Compose Comment"_s);
    EXPECT_TRUE(progress.isCancellable());
    EXPECT_TRUE(compose(u"40000"_s, u"properties.bitDepth"_s).error);
    progress.cancel();
    EXPECT_FALSE(compose(u"other"_s, u"tags.comment"_s).hasChangedFiles);
    EXPECT_EQ(value(file, u"comment"_s), u"A - T"_s);
}

TEST(HRFNumberParserTest, ReadsNumbersOfTheLanguage)
{
    const HRFNumberParser german(QLocale(u"de_DE"_s));
    EXPECT_EQ(german.numberFromString(u"1,5"_s), 1.5);
    EXPECT_EQ(german.numberFromString(u"9223372036854775807"_s), 9223372036854775807LL);
    EXPECT_EQ(german.numberFromString(u"٣٤"_s), 34);
    for (const QString &text : {u""_s, u"1.5"_s, u"∞"_s, u"NaN"_s, u"1 "_s})
        EXPECT_FALSE(german.numberFromString(text).isValid()) << text.toStdString();
}

} // namespace
