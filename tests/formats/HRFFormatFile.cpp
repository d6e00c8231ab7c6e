#include "formats/HRFFormatFile.h"

#include <QFile>
#include <QFileInfo>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// The settings of whoever runs the tests must not decide about them.
class DefaultSettings : public ::testing::Environment
{
    void SetUp() override { HRFUserDefaults::standard().setFilePath(u"/nonexistent/lirra.ini"_s); }
};

const auto *const defaultSettings = ::testing::AddGlobalTestEnvironment(new DefaultSettings);

} // namespace

HRFFormatFile::HRFFormatFile(const char *fixture, const char *fileType)
{
    const QString source = QString::fromLatin1(HRF_FIXTURES) + QString::fromLatin1(fixture);
    const QString type =
        *fileType == '\0' ? QFileInfo(source).suffix() : QString::fromLatin1(fileType);
    const QString copy = m_folder.filePath(u"copy."_s + type);
    if (!QFile::copy(source, copy)
        || !QFile::setPermissions(copy, QFile::ReadUser | QFile::WriteUser))
        throw std::runtime_error(fixture);
    m_path = QFile::encodeName(copy);
}

QByteArray HRFFormatFile::bytes() const
{
    QFile file(QFile::decodeName(m_path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void HRFFormatFile::setBytes(const QByteArray &bytes) const
{
    QFile file(QFile::decodeName(m_path));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("the copy cannot be written");
}

HRFResult<std::unique_ptr<HRFTagEngine>> HRFFormatFile::tryOpen(bool readProperties) const
{
    return HRFTagEngine::initWithURL(HRFFileReference::fromNativePath(m_path), readProperties);
}

std::unique_ptr<HRFTagEngine> HRFFormatFile::open(bool readProperties) const
{
    auto engine = tryOpen(readProperties);
    if (!engine)
        throw std::runtime_error(engine.error().fullText().toStdString());
    return std::move(*engine);
}

HRFResult<void> HRFFormatFile::trySet(const HRFTagValues &values) const
{
    const auto engine = open();
    for (const auto &[key, value] : values)
        engine->setValueForKey(value, key);
    return engine->updateFileWithError();
}

void HRFFormatFile::set(const HRFTagValues &values) const
{
    EXPECT_TRUE(HRFSucceeded(trySet(values)));
}

void HRFFormatFile::strip() const
{
    const auto engine = open();
    EXPECT_TRUE(HRFSucceeded(engine->stripTags()));
    EXPECT_TRUE(HRFSucceeded(engine->updateFileWithError()));
}

void PrintTo(const QVariant &value, std::ostream *out)
{
    *out << (value.isValid() ? value.toString().left(80).toStdString() : "nothing");
}

void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.left(80).toStdString() << '"';
}

::testing::AssertionResult HRFSucceeded(const HRFResult<void> &result)
{
    if (result)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << result.error().fullText().toStdString();
}
