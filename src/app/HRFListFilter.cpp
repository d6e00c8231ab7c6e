#include "app/HRFListFilter.h"

#include "app/HRFListColumn.h"
#include "kit/HRFCollation.h"
#include "store/HRFMainContext.h"
#include "store/HRFMetaFile.h"

#include <algorithm>

namespace {

const HRFListColumn &columnAt(int column)
{
    return HRFListColumns::all()[std::size_t(column)];
}

} // namespace

HRFListFilter::HRFListFilter(HRFMainContext &context, HRFArrayController &controller,
                             QObject *parent)
    : QObject(parent), m_context(context), m_controller(controller)
{
    constexpr std::chrono::milliseconds betweenKeys(40);
    m_timer.setSingleShot(true);
    m_timer.setInterval(betweenKeys);
    connect(&m_timer, &QTimer::timeout, this, &HRFListFilter::apply);
    connect(&controller, &HRFArrayController::arrangementDidChange, this,
            &HRFListFilter::arrangementDidChange);
}

void HRFListFilter::setWords(const QString &words)
{
    if (std::exchange(m_words, words) != words)
        applySoon();
}

void HRFListFilter::setSearchedColumns(const std::vector<int> &columns)
{
    m_searched = columns;
    if (!m_words.isEmpty())
        applySoon();
}

std::optional<HRFListFilter::Texts> HRFListFilter::allowedTexts(int column) const
{
    const auto found = m_allowed.constFind(column);
    return found == m_allowed.constEnd() ? std::nullopt : std::optional(*found);
}

void HRFListFilter::setAllowedTexts(int column, const std::optional<Texts> &texts)
{
    if (texts)
        m_allowed.insert(column, *texts);
    else
        m_allowed.remove(column);
    applySoon();
}

void HRFListFilter::clear()
{
    m_words.clear();
    m_allowed.clear();
    applySoon();
}

void HRFListFilter::applySoon()
{
    m_timer.start();
    Q_EMIT didChange();
}

HRFRecordFilter HRFListFilter::makeFilter(int withoutColumn) const
{
    std::vector<const HRFAttributeDescription *> searched;
    for (const int column : m_searched)
        if (const HRFAttributeDescription *attribute = columnAt(column).attribute())
            searched.push_back(attribute);
    HRFRecordFilter hasWords = HRFRecordFilterForWords(m_words, searched);
    std::vector<std::pair<const HRFListColumn *, Texts>> allowed;
    for (auto entry = m_allowed.begin(); entry != m_allowed.end(); ++entry)
        if (entry.key() != withoutColumn)
            allowed.emplace_back(&columnAt(entry.key()), entry.value());
    if (allowed.empty())
        return hasWords;
    return [hasWords, allowed](const HRFMetaFile &file) {
        const auto isAllowed = [&](const auto &entry) {
            return entry.second.contains(entry.first->text(file));
        };
        return std::ranges::all_of(allowed, isAllowed) && (!hasWords || hasWords(file));
    };
}

void HRFListFilter::apply()
{
    m_timer.stop();
    HRFRecordFilter filter = makeFilter();
    if (filter || m_controller.hasFilter())
        m_controller.setFilter(std::move(filter));
}

/// New files take the filter away.
void HRFListFilter::arrangementDidChange()
{
    if (!m_controller.hasFilter() && !m_timer.isActive() && makeFilter()) {
        m_words.clear();
        m_allowed.clear();
        Q_EMIT didChange();
    }
}

std::vector<HRFListFilter::Value> HRFListFilter::valuesOf(int column) const
{
    const HRFRecordFilter others = makeFilter(column);
    QHash<QString, int> counts;
    for (const HRFMetaFile *file : m_context.fetch<HRFMetaFile>())
        if (!others || others(*file))
            ++counts[columnAt(column).text(*file)];
    std::vector<Value> values;
    for (auto entry = counts.begin(); entry != counts.end(); ++entry)
        values.push_back({entry.key(), entry.value()});
    const QCollator collator = HRFCollation::naturalOrder();
    std::ranges::sort(values, [&](const Value &left, const Value &right) {
        return collator.compare(left.text, right.text) < 0;
    });
    return values;
}
