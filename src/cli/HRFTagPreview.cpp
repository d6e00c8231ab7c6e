#include "cli/HRFTagPreview.h"

#include "cli/HRFConsole.h"
#include "cli/HRFValueText.h"
#include "tags/HRFTagEngine.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(HRFTagKey key)
{
    return HRFTagProperties::propertyNames().at(qsizetype(key));
}

QString shownValue(const QVariant &value)
{
    if (HRFTagValue::isNothing(value))
        return u"nothing"_s;
    if (value.typeId() == QMetaType::QByteArray)
        return u"%1 bytes"_s.arg(value.toByteArray().size());
    return u"“%1”"_s.arg(HRFConsole::printable(HRFValueText(value)));
}

} // namespace

HRFTagPreview HRFTagPreview::of(HRFTagEngine &engine, const std::vector<HRFTagChange> &changes)
{
    std::map<HRFTagKey, QVariant> before;
    for (const HRFTagChange &change : changes) {
        before.try_emplace(change.key, engine.valueForKey(change.key));
        engine.setValueForKey(change.value, change.key);
    }
    HRFTagPreview preview;
    for (const auto &[key, value] : before) {
        const QVariant after = engine.valueForKey(key);
        const bool isNothing = HRFTagValue::isNothing(value) && HRFTagValue::isNothing(after);
        if (value != after && !isNothing)
            preview.changes.push_back({key, value, after});
    }
    preview.outcome = engine.checkChanges();
    return preview;
}

QByteArray HRFTagPreview::text() const
{
    QString lines;
    for (const auto &[key, before, after] : changes)
        lines += u"  %1: %2 -> %3\n"_s.arg(nameOf(key), shownValue(before), shownValue(after));
    return lines.toUtf8();
}

QJsonObject HRFTagPreview::json() const
{
    QJsonObject object;
    for (const auto &[key, before, after] : changes) {
        object.insert(
            nameOf(key),
            QJsonObject{{u"old"_s, HRFJSONValue(before)}, {u"new"_s, HRFJSONValue(after)}});
    }
    return object;
}
