#include "document/HRFRecordOrder.h"

#include "kit/HRFCollation.h"
#include "store/HRFMetaFile.h"

#include <QDateTime>
#include <QHash>

#include <algorithm>
#include <limits>
#include <numeric>

namespace {

constexpr double noValue = std::numeric_limits<double>::infinity();

double numberOf(const QVariant &value)
{
    if (!value.isValid())
        return noValue;
    if (value.typeId() == QMetaType::QDateTime)
        return double(value.toDateTime().toMSecsSinceEpoch());
    return value.toDouble();
}

int sign(double left, double right)
{
    return int(left > right) - int(left < right);
}

std::vector<std::size_t> placesUpTo(std::size_t count)
{
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), 0);
    return places;
}

/// The places of texts in their order; equal ones share a place.
std::vector<double> ranksOf(const std::vector<QString> &texts, const QCollator &collator)
{
    std::vector<QCollatorSortKey> keys;
    keys.reserve(texts.size());
    for (const QString &text : texts)
        keys.push_back(collator.sortKey(text));
    std::vector<std::size_t> places = placesUpTo(texts.size());
    std::ranges::sort(
        places, [&](std::size_t left, std::size_t right) { return keys[left] < keys[right]; });
    std::vector<double> ranks(texts.size());
    for (std::size_t i = 1; i < places.size(); ++i) {
        const bool isGreater = keys[places[i - 1]] < keys[places[i]];
        ranks[places[i]] = ranks[places[i - 1]] + (isGreater ? 1 : 0);
    }
    return ranks;
}

} // namespace

HRFRecordOrder::HRFRecordOrder(const HRFSortDescriptors &descriptors, const HRFObjectModel &model)
    : m_collator(HRFCollation::naturalOrder())
{
    for (const HRFSortDescriptor &descriptor : descriptors) {
        if (auto column = HRFRecordColumn::atKeyPath(model, descriptor.keyPath)) {
            m_descriptors.push_back(descriptor);
            m_columns.push_back(*std::move(column));
        }
    }
}

void HRFRecordOrder::sort(Records &records) const
{
    std::vector<std::vector<double>> keys;
    for (const HRFRecordColumn &column : m_columns)
        keys.push_back(keysOf(records, column));
    const auto isBeforeByKeys = [&](std::size_t left, std::size_t right) {
        for (std::size_t i = 0; i < keys.size(); ++i)
            if (const int order = sign(keys[i][left], keys[i][right]))
                return (order < 0) == m_descriptors[i].ascending;
        return records[left]->objectID() < records[right]->objectID();
    };
    std::vector<std::size_t> places = placesUpTo(records.size());
    std::ranges::sort(places, isBeforeByKeys);
    Records sorted;
    sorted.reserve(records.size());
    for (const std::size_t place : places)
        sorted.push_back(records[place]);
    records = std::move(sorted);
}

std::vector<double> HRFRecordOrder::keysOf(const Records &records,
                                           const HRFRecordColumn &column) const
{
    std::vector<double> keys(records.size(), noValue);
    if (column.attribute().isString())
        rankTexts(records, column, keys);
    else
        std::ranges::transform(records, keys.begin(), [&](const HRFMetaFile *record) {
            return numberOf(column.value(*record));
        });
    return keys;
}

/// Each text is looked at once, however many records have it.
void HRFRecordOrder::rankTexts(const Records &records, const HRFRecordColumn &column,
                               std::vector<double> &keys) const
{
    constexpr std::size_t none = std::numeric_limits<std::size_t>::max();
    QHash<QString, std::size_t> placeOfText;
    std::vector<QString> texts;
    std::vector<std::size_t> places(records.size(), none);
    for (std::size_t i = 0; i < records.size(); ++i) {
        const QVariant value = column.value(*records[i]);
        if (!value.isValid())
            continue;
        const QString text = value.toString();
        auto found = placeOfText.constFind(text);
        if (found == placeOfText.constEnd()) {
            found = placeOfText.insert(text, texts.size());
            texts.push_back(text);
        }
        places[i] = *found;
    }
    const std::vector<double> ranks = ranksOf(texts, m_collator);
    for (std::size_t i = 0; i < records.size(); ++i)
        if (places[i] != none)
            keys[i] = ranks[places[i]];
}

void HRFRecordOrder::merge(Records &sorted, Records newcomers) const
{
    sort(newcomers);
    const bool allComeLast =
        sorted.empty() || newcomers.empty() || isBefore(*sorted.back(), *newcomers.front());
    if (allComeLast) {
        std::ranges::copy(newcomers, std::back_inserter(sorted));
        return;
    }
    Records merged;
    merged.reserve(sorted.size() + newcomers.size());
    auto rest = sorted.cbegin();
    for (HRFMetaFile *newcomer : newcomers) {
        // Edits may have left records out of order: then any place among them will do.
        const auto place =
            std::upper_bound(rest, sorted.cend(), newcomer,
                             [this](const HRFMetaFile *left, const HRFMetaFile *right) {
                                 return isBefore(*left, *right);
                             });
        merged.insert(merged.end(), rest, place);
        merged.push_back(newcomer);
        rest = place;
    }
    merged.insert(merged.end(), rest, sorted.cend());
    sorted = std::move(merged);
}

bool HRFRecordOrder::isBefore(const HRFMetaFile &left, const HRFMetaFile &right) const
{
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (const int order = compare(m_columns[i], left, right))
            return (order < 0) == m_descriptors[i].ascending;
    return left.objectID() < right.objectID();
}

int HRFRecordOrder::compare(const HRFRecordColumn &column, const HRFMetaFile &left,
                            const HRFMetaFile &right) const
{
    const QVariant leftValue = column.value(left);
    const QVariant rightValue = column.value(right);
    if (column.attribute().isString() && leftValue.isValid() && rightValue.isValid())
        return m_collator.compare(leftValue.toString(), rightValue.toString());
    if (column.attribute().isString())
        return int(rightValue.isValid()) - int(leftValue.isValid());
    return sign(numberOf(leftValue), numberOf(rightValue));
}
