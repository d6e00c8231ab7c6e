#include "store/HRFValueTransformer.h"

#include "kit/HRFAssert.h"

#include <QDateTime>
#include <QLocale>
#include <gtest/gtest.h>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

/// The language of the user and the time zone, until the end of the scope.
class HRFPlace
{
public:
    explicit HRFPlace(const char *locale, const char *zone = "UTC")
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(locale)));
        setZone(zone);
    }
    HRFPlace(const HRFPlace &) = delete;
    HRFPlace &operator=(const HRFPlace &) = delete;
    ~HRFPlace()
    {
        QLocale::setDefault(m_locale);
        setZone(m_zone);
    }

private:
    static void setZone(const QByteArray &zone)
    {
        if (zone.isNull())
            qunsetenv("TZ");
        else
            qputenv("TZ", zone);
        ::tzset();
    }

    const QLocale m_locale;
    const QByteArray m_zone = qgetenv("TZ");
};

} // namespace

TEST(HRFValueTransformer, ShowsValues)
{
    const HRFPlace place("en_US");
    const std::tuple<const char *, QVariant, QString> cases[] = {
        {"MetadataStringTransformer", u" a\nb/c:\t"_s, u" a\nb/c:\t"_s},
        {"MetadataStringTransformer", 7, u"7"_s},
        {"HRFLocalizedBoolValue", true, u"Yes"_s},
        {"HRFLocalizedBoolValue", 0, u"No"_s},
        {"HRFFileSizeValue", 0, u"0 bytes"_s},
        {"HRFFileSizeValue", 999, u"999 bytes"_s},
        {"HRFFileSizeValue", 5'432'100, u"5.4 MB"_s},
        {"HRFFileSizeValue", 7'000'000'000LL, u"7.0 GB"_s},
        {"HRFDurationValue", 0, u"0:00"_s},
        {"HRFDurationValue", 185, u"3:05"_s},
        {"HRFDurationValue", 3599, u"59:59"_s},
        {"HRFDurationValue", 3600, u"1:00:00"_s},
        {"HRFDurationValue", 360'123, u"100:02:03"_s},
        {"HRFBitRateValue", 320, u"320 kbps"_s},
        {"HRFBitRateValue", 1411, u"1411 kbps"_s},
        {"HRFSampleRateValue", 44100, u"44.1 kHz"_s},
        {"HRFSampleRateValue", 11025, u"11.025 kHz"_s},
        {"HRFSampleRateValue", 5'644'800, u"5644.8 kHz"_s},
        {"HRFBitDepthValue", 16, u"16 bit"_s},
        {"HRFFileNameValue", u"AC:DC: x.mp3"_s, u"AC/DC/ x.mp3"_s},
        {"HRFImageSizeValue", u"{600, 400}"_s, u"600 × 400"_s}};
    for (const auto &[transformer, value, text] : cases) {
        const QString name = QString::fromLatin1(transformer);
        EXPECT_EQ(HRFTransformedValue(name, value), text) << transformer;
        EXPECT_EQ(HRFTransformedValue(name, {}), QString()) << transformer;
        EXPECT_EQ(HRFTransformedValue(name, QVariant::fromValue(nullptr)), QString());
    }
    EXPECT_THROW(HRFTransformedValue(u"Unheard"_s, 1), HRFAssertionFailure);
}

TEST(HRFValueTransformer, ShowsDatesWhereTheUserIs)
{
    const QDateTime day(QDate(1924, 3, 1), QTime(0, 0), Qt::UTC);
    const QDateTime moment(QDate(2024, 3, 1), QTime(2, 30), Qt::UTC);
    const std::tuple<const char *, const char *, QDateTime, QString> cases[] = {
        {"en_US", "EST+5", day, u"3/1/1924"_s},
        {"en_US", "EST+5", moment, u"2/29/2024 9:30 PM"_s},
        {"de_DE", "CET-1", day, u"01.03.1924"_s},
        {"de_DE", "CET-1", moment, u"01.03.2024 03:30"_s},
        {"en_GB", "JST-9", moment.toOffsetFromUtc(3600), u"01/03/2024 11:30"_s}};
    for (const auto &[locale, zone, date, text] : cases) {
        const HRFPlace place(locale, zone);
        QString shown = HRFTransformedValue(u"HRFShortDateValue"_s, date);
        // Which blank it is depends on the age of the locale data.
        EXPECT_EQ(shown.replace(u'\u202F', u' '), text) << locale;
    }
}
