#include "app/HRFStatusLine.h"

#include "app/HRFListColumn.h"
#include "document/HRFPlaylist.h"
#include "store/HRFValueTransformer.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const HRFListColumn &columnNamed(const QString &name)
{
    return HRFListColumns::all()[std::size_t(HRFListColumns::indexOf(name))];
}

constexpr std::chrono::milliseconds restOfUser(80);
/// Many files are written one after the other, and each sum takes its time.
constexpr std::chrono::milliseconds restOfWrites(600);

const QString sizeName = u"fileSize"_s;
const QString durationName = u"duration"_s;

bool affects(const HRFContextChanges &changes, const QString &name)
{
    const HRFAttributeDescription &attribute = *columnNamed(name).attribute();
    return std::ranges::any_of(changes.updated, [&](const HRFObjectChange &change) {
        return change.properties & HRFPropertyBit(attribute.index)
            && change.object->entity().name == attribute.entity->name;
    });
}

/// The sum of an attribute, as its values are shown.
QString sumOf(const QString &name, const HRFArrayController::Records &records)
{
    const HRFListColumn &column = columnNamed(name);
    qlonglong sum = 0;
    for (const HRFMetaFile *record : records)
        sum += column.value(*record).toLongLong();
    return HRFTransformedValue(column.attribute()->displayValueTransformerName(), sum);
}

} // namespace

HRFStatusLine::HRFStatusLine(HRFPlaylist &list, QWidget *parent) : QLabel(parent), m_list(list)
{
    constexpr int margin = 6;
    setObjectName(u"statusLine"_s);
    setContentsMargins(margin, 0, margin, 0);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &HRFStatusLine::refresh);
    const auto listDidChange = [this] { refreshAfter(restOfUser); };
    connect(&list.fileController(), &HRFArrayController::arrangementDidChange, this, listDidChange);
    connect(&list.fileController(), &HRFArrayController::selectionDidChange, this, listDidChange);
    connect(&list.managedObjectContext(), &HRFMainContext::objectsDidChange, this,
            [this](const HRFContextChanges &changes) {
                if (affects(changes, sizeName) || affects(changes, durationName))
                    refreshAfter(restOfWrites);
            });
    refresh();
}

void HRFStatusLine::refreshAfter(std::chrono::milliseconds rest)
{
    if (!m_timer.isActive() || m_timer.remainingTimeAsDuration() > rest)
        m_timer.start(rest);
}

void HRFStatusLine::refresh()
{
    const auto &shown = m_list.fileController().arrangedObjects();
    const auto &selected = m_list.fileController().selectedObjects();
    if (shown.empty())
        return setText(m_list.fileController().hasFilter() ? tr("No file matches the filter")
                                                           : tr("No files"));
    const QLocale locale;
    const QString count = shown.size() == 1
        ? tr("1 file")
        : tr("%1 files").arg(locale.toString(qulonglong(shown.size())));
    const bool isPart = !selected.empty() && selected.size() < shown.size();
    const auto &summed = isPart ? selected : shown;
    QStringList parts{
        isPart ? tr("%1 of %2 selected").arg(locale.toString(qulonglong(selected.size())), count)
               : count,
        sumOf(sizeName, summed)};
    if (const QString duration = sumOf(durationName, summed); !duration.isEmpty())
        parts.append(duration);
    setText(parts.join(u"  ·  "_s));
}
