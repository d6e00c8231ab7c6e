#include "cli/HRFValueText.h"

#include "kit/HRFFileReference.h"
#include "kit/HRFISO8601DateFormatter.h"
#include "tags/HRFTagValue.h"

using namespace Qt::StringLiterals;

QString HRFValueText(const QVariant &value)
{
    if (value.typeId() == QMetaType::QDateTime)
        return HRFISO8601DateFormatter::shared().stringFromDate(value.toDateTime());
    return value.toString();
}

QString HRFShownText(const QVariant &value, HRFTagKey key)
{
    constexpr int secondsPerMinute = 60;
    switch (key) {
    case HRFTagKey::duration: {
        const qlonglong seconds = value.toLongLong();
        return u"%1:%2"_s.arg(seconds / secondsPerMinute)
            .arg(seconds % secondsPerMinute, 2, 10, QChar(u'0'));
    }
    case HRFTagKey::bitRate:
        return value.toString() + u" kbit/s"_s;
    case HRFTagKey::sampleRate:
        return value.toString() + u" Hz"_s;
    case HRFTagKey::bitDepth:
        return value.toString() + u" bits"_s;
    case HRFTagKey::tagSize:
        return value.toString() + u" bytes"_s;
    default:
        return HRFValueText(value);
    }
}

QJsonValue HRFJSONValue(const QVariant &value)
{
    if (HRFTagValue::isNothing(value))
        return {};
    return value.typeId() == QMetaType::QDateTime ? QJsonValue(HRFValueText(value))
                                                  : QJsonValue::fromVariant(value);
}

QJsonObject HRFJSONOfPath(const HRFFileReference &path)
{
    QJsonObject object{{u"path"_s, path.displayPath()}};
    if (!path.isValidUtf8())
        object.insert(u"pathBytes"_s, QString::fromLatin1(path.nativePath().toHex()));
    return object;
}
