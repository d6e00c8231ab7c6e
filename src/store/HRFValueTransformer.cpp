#include "store/HRFValueTransformer.h"

#include "kit/HRFAssert.h"
#include "kit/HRFShortDateFormatter.h"
#include "tags/HRFTagValue.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct Row
{
    QLatin1StringView name;
    QString (*text)(const QVariant &value);
};

QString tr(const char *text)
{
    return QCoreApplication::translate("HRFValueTransformer", text);
}

QString plainText(const QVariant &value)
{
    return value.toString();
}

QString yesOrNo(const QVariant &value)
{
    return value.toBool() ? tr("Yes") : tr("No");
}

QString fileSize(const QVariant &value)
{
    return QLocale().formattedDataSize(value.toLongLong(), 1, QLocale::DataSizeSIFormat);
}

QString duration(const QVariant &value)
{
    constexpr qlonglong base = 60;
    const qlonglong seconds = value.toLongLong();
    const qlonglong minutes = seconds / base;
    const qlonglong hours = minutes / base;
    const auto twoDigits = [](qlonglong number) { return u"%1"_s.arg(number, 2, 10, QChar(u'0')); };
    const QString start = hours > 0 ? QString::number(hours) + u':' + twoDigits(minutes % base)
                                    : QString::number(minutes);
    return start + u':' + twoDigits(seconds % base);
}

QString bitRate(const QVariant &value)
{
    return tr("%1 kbps").arg(value.toLongLong());
}

QString sampleRate(const QVariant &value)
{
    constexpr double hertzPerKilohertz = 1000;
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return tr("%1 kHz").arg(
        locale.toString(value.toDouble() / hertzPerKilohertz, 'f', QLocale::FloatingPointShortest));
}

QString bitDepth(const QVariant &value)
{
    return tr("%1 bit").arg(value.toLongLong());
}

QString shortDate(const QVariant &value)
{
    return HRFShortDateFormatter::stringFromDate(value.toDateTime());
}

/// Names are kept with ":" where the user sees "/".
QString fileName(const QVariant &value)
{
    return value.toString().replace(u':', u'/');
}

/// "{600, 400}" as "600 × 400".
QString imageSize(const QVariant &value)
{
    QString text = value.toString();
    return text.remove(u'{').remove(u'}').replace(", "_L1, u" × "_s);
}

constexpr std::array rows{
    Row{HRFValueTransformer::metadataString, plainText},
    Row{HRFValueTransformer::localizedBool, yesOrNo},
    Row{"HRFFileSizeValue"_L1, fileSize},
    Row{HRFValueTransformer::duration, duration},
    Row{"HRFBitRateValue"_L1, bitRate},
    Row{"HRFSampleRateValue"_L1, sampleRate},
    Row{"HRFBitDepthValue"_L1, bitDepth},
    Row{"HRFShortDateValue"_L1, shortDate},
    Row{"HRFFileNameValue"_L1, fileName},
    Row{"HRFImageSizeValue"_L1, imageSize},
};

} // namespace

QString HRFTransformedValue(const QString &transformer, const QVariant &value)
{
    const auto row = std::ranges::find(rows, transformer, &Row::name);
    HRFRequire(row != rows.end(), "transformer");
    return HRFTagValue::isNothing(value) ? QString() : row->text(value);
}
