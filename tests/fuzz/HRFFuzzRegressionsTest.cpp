#include "fuzz/HRFFuzzTarget.h"
#include "fuzz/HRFResourceLimits.h"

#include <QDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

/// One file of the folder regressions; its name begins with its family.
struct Regression
{
    QString fileName;

    QByteArray family() const { return fileName.section(u'-', 0, 0).toUtf8(); }
    QByteArray contents() const
    {
        QFile file(QDir(QStringLiteral(LIRRA_FUZZ_REGRESSIONS)).filePath(fileName));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

void PrintTo(const Regression &regression, std::ostream *stream)
{
    *stream << regression.fileName.toStdString();
}

std::vector<Regression> allRegressions()
{
    std::vector<Regression> all;
    for (const QString &name :
         QDir(QStringLiteral(LIRRA_FUZZ_REGRESSIONS)).entryList(QDir::Files, QDir::Name))
        all.push_back({name});
    return all;
}

std::string testName(const testing::TestParamInfo<Regression> &info)
{
    QString name = info.param.fileName;
    for (QChar &c : name)
        if (!c.isLetterOrNumber())
            c = u'_';
    return name.toStdString();
}

class HRFFuzzRegressions : public testing::TestWithParam<Regression>
{
};

TEST_P(HRFFuzzRegressions, KeepsEveryPromise)
{
    const QByteArray contents = GetParam().contents();
    const HRFEngineClass *engineClass = HRFFuzzEngineClass(GetParam().family());
    ASSERT_THAT(engineClass, testing::NotNull());
    const HRFResourceLimits limits;
    // Other settings apply to inputs of odd size.
    for (const QByteArray &input : {contents, contents + '\0'})
        EXPECT_EQ(HRFFuzzOneInput(*engineClass, input).toStdString(), "");
    EXPECT_EQ(limits.exceeded().toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Inputs, HRFFuzzRegressions, testing::ValuesIn(allRegressions()), testName);

} // namespace
