#include "support/HRFTestFile.h"

#include "tags/HRFEngineRegistry.h"

#include <QFile>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// The settings of whoever runs the tests must not decide about them.
class ShippedSettings : public testing::Environment
{
    void SetUp() override { HRFUserDefaults::standard().setFilePath(u"/nonexistent/lirra.ini"_s); }
};

const auto *const shippedSettings = testing::AddGlobalTestEnvironment(new ShippedSettings);

} // namespace

HRFTestFile HRFTestFile::fixture(const QByteArray &name, const QByteArray &fileType)
{
    QFile file(QString::fromUtf8(HRF_FIXTURES + name));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(name.toStdString());
    const QByteArray extension = name.sliced(name.lastIndexOf('.') + 1);
    return {fileType.isEmpty() ? extension : fileType, file.readAll()};
}

std::shared_ptr<HRFTagStream> HRFTestFile::stream()
{
    return std::make_shared<HRFTagStream>(
        std::make_unique<HRFMemoryByteStore>(bytes, faults, "memory." + fileType, size));
}

HRFResult<std::unique_ptr<HRFTagEngine>> HRFTestFile::tryOpen(bool readProperties)
{
    const auto *engineClass = HRFEngineRegistry::shared().classForType(fileType);
    return engineClass->initWithStream(stream(), readProperties);
}

std::unique_ptr<HRFTagEngine> HRFTestFile::open(bool readProperties)
{
    auto engine = tryOpen(readProperties);
    if (!engine)
        throw std::runtime_error(HRFFailure(engine).toStdString());
    return std::move(*engine);
}

HRFResult<void> HRFTestFile::trySet(const HRFTagValues &values)
{
    const auto engine = open();
    for (const auto &[key, value] : values)
        engine->setValueForKey(value, key);
    return engine->updateFileWithError();
}

void HRFTestFile::set(const HRFTagValues &values)
{
    EXPECT_EQ(HRFFailure(trySet(values)), u""_s);
}

HRFResult<void> HRFTestFile::tryStrip()
{
    const auto engine = open();
    const auto stripped = engine->stripTags();
    return stripped ? engine->updateFileWithError() : stripped;
}

void HRFTestFile::strip()
{
    EXPECT_EQ(HRFFailure(tryStrip()), u""_s);
}

void PrintTo(const QVariant &value, std::ostream *out)
{
    *out << (value.isValid() ? value.toString().left(80).toStdString() : "nothing");
}

void PrintTo(const QString &text, std::ostream *out)
{
    *out << '"' << text.left(200).toStdString() << '"';
}

void PrintTo(const QByteArray &bytes, std::ostream *out)
{
    *out << bytes.size() << " bytes: " << bytes;
}

std::ostream &operator<<(std::ostream &out, const QByteArray &bytes)
{
    return out << bytes.left(300).toPercentEncoding(" /=").toStdString();
}
