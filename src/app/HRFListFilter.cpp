#include "app/HRFListFilter.h"

#include "app/HRFListColumn.h"
#include "document/HRFPlaylist.h"
#include "operations/HRFProgress.h"
#include "store/HRFMetaFile.h"

#include <algorithm>

namespace {

const HRFListColumn &columnAt(int column)
{
    return HRFListColumns::all()[std::size_t(column)];
}

} // namespace

HRFListFilter::HRFListFilter(HRFPlaylist &list, QObject *parent)
    : QObject(parent), m_list(list), m_controller(list.fileController())
{
    constexpr std::chrono::milliseconds betweenKeys(20);
    m_timer.setSingleShot(true);
    m_timer.setInterval(betweenKeys);
    connect(&m_timer, &QTimer::timeout, this, &HRFListFilter::apply);
    connect(&m_controller, &HRFArrayController::arrangementDidChange, this,
            &HRFListFilter::arrangementDidChange);
    connect(&list.fileManager(), &HRFMetaFileManager::importDidEnd, this,
            &HRFListFilter::importDidEnd);
}

void HRFListFilter::setWords(const QString &words)
{
    if (std::exchange(m_choice.words, words) != words)
        applySoon();
}

void HRFListFilter::setSearchedColumns(const std::vector<int> &columns)
{
    m_searched = columns;
    if (!m_choice.words.isEmpty())
        applySoon();
}

std::optional<HRFListFilter::Texts> HRFListFilter::allowedTexts(int column) const
{
    const auto found = m_choice.allowed.constFind(column);
    return found == m_choice.allowed.constEnd() ? std::nullopt : std::optional(*found);
}

void HRFListFilter::setAllowedTexts(int column, const std::optional<Texts> &texts)
{
    if (texts)
        m_choice.allowed.insert(column, *texts);
    else
        m_choice.allowed.remove(column);
    applySoon();
}

void HRFListFilter::clear()
{
    m_choice = {};
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
    HRFRecordFilter hasWords = HRFRecordFilterForWords(m_choice.words, searched);
    std::vector<std::pair<const HRFListColumn *, Texts>> allowed;
    for (auto entry = m_choice.allowed.begin(); entry != m_choice.allowed.end(); ++entry)
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
        m_takenAway = std::exchange(m_choice, {});
        m_import = m_list.fileManager().importProgress();
        Q_EMIT didChange();
    }
}

/// An import that was cancelled leaves the list as it was, with its filter. A filter that was
/// chosen meanwhile stays.
void HRFListFilter::importDidEnd()
{
    const auto import = std::exchange(m_import, {});
    Choice previous = std::exchange(m_takenAway, {});
    if (!import || !import->isCancelled() || isActive())
        return;
    m_choice = std::move(previous);
    apply();
    Q_EMIT didChange();
}

std::vector<HRFListFilter::Value> HRFListFilter::valuesOf(int column) const
{
    const HRFRecordFilter others = makeFilter(column);
    QHash<QString, int> counts;
    const auto files = m_list.managedObjectContext().fetch<HRFMetaFile>();
    counts.reserve(qsizetype(files.size()));
    for (const HRFMetaFile *file : files)
        if (!others || others(*file))
            ++counts[columnAt(column).text(*file)];
    std::vector<Value> values;
    for (auto entry = counts.begin(); entry != counts.end(); ++entry)
        values.push_back({entry.key(), entry.value()});
    return values;
}
