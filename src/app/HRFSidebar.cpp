#include "app/HRFSidebar.h"

#include "app/HRFArtworkPane.h"
#include "app/HRFSidebarDialog.h"
#include "app/HRFSidebarField.h"
#include "app/HRFSidebarGroup.h"
#include "document/HRFPlaylist.h"
#include "store/HRFArtworkProperties.h"
#include "store/HRFMetaFile.h"
#include "store/HRFSystemFile.h"
#include "store/HRFViewConfigManager.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int margin = 8;

/// The changed properties of each entity.
QHash<QString, HRFPropertySet> changedProperties(const HRFContextChanges &changes)
{
    QHash<const HRFEntityDescription *, HRFPropertySet> sets;
    for (const HRFObjectChange &change : changes.updated)
        sets[&change.object->entity()] |= change.properties;
    QHash<QString, HRFPropertySet> named;
    for (const auto &[entity, set] : sets.asKeyValueRange())
        named.insert(entity->name, set);
    return named;
}

/// Whatever their order is.
bool areSame(std::vector<HRFObjectID> records, std::vector<HRFObjectID> others)
{
    if (records.size() != others.size())
        return false;
    std::ranges::sort(records);
    std::ranges::sort(others);
    return records == others;
}

} // namespace

HRFSidebar::HRFSidebar(HRFPlaylist &list, QWidget *parent)
    : QScrollArea(parent)
    , m_list(list)
    , m_content(new QWidget)
    , m_summary(new QLabel(m_content))
    , m_artwork(new HRFArtworkPane(list, m_content))
{
    constexpr int narrowest = 240;
    setObjectName(u"sidebar"_s);
    setAccessibleName(tr("Sidebar"));
    setMinimumWidth(narrowest);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_summary->setObjectName(u"sidebarSummary"_s);
    m_summary->setContentsMargins(margin, margin, margin, 0);
    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *layout = new QVBoxLayout(m_content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_summary);
    layout->addWidget(m_artwork);
    setWidget(m_content);
    m_refresh.setSingleShot(true);
    m_refresh.setInterval(0);
    connect(&m_refresh, &QTimer::timeout, this, &HRFSidebar::refreshSome);
    connect(&list.fileController(), &HRFArrayController::selectionDidChange, this,
            &HRFSidebar::selectionDidChange);
    connect(&list.managedObjectContext(), &HRFMainContext::objectsDidChange, this,
            &HRFSidebar::contextDidChange);
    connect(&HRFViewConfigManager::sharedManager(), &HRFViewConfigManager::groupsDidChange, this,
            &HRFSidebar::makeGroups);
    makeGroups();
    selectionDidChange();
}

HRFSidebar::~HRFSidebar()
{
    removeGroups();
}

/// A field that had the focus when it goes would take its text while it is no field any more.
void HRFSidebar::removeGroups()
{
    finishEditing();
    if (QWidget *focused = window()->focusWidget();
        m_groupsPane && m_groupsPane->isAncestorOf(focused))
        focused->clearFocus();
    m_stale.clear();
    m_groups.clear();
    delete std::exchange(m_groupsPane, nullptr);
}

void HRFSidebar::makeGroups()
{
    removeGroups();
    auto *groups = new QWidget(m_content);
    auto *layout = new QVBoxLayout(groups);
    layout->setContentsMargins(margin / 2, 0, margin / 2, margin);
    for (std::size_t index = 0; index < HRFViewConfigManager::sharedManager().groups().size();
         ++index)
        layout->addWidget(makeGroup(index, groups));
    layout->addStretch();
    m_groupsPane = groups;
    m_content->layout()->addWidget(groups);
    chainFocus();
    makeAllStale();
}

/// New widgets come last in the window's order, but Tab leads through the sidebar from its top.
void HRFSidebar::chainFocus()
{
    QWidget *previous = m_artwork;
    for (QWidget *widget : m_groupsPane->findChildren<QWidget *>())
        if (widget->focusPolicy() & Qt::TabFocus)
            setTabOrder(std::exchange(previous, widget), widget);
}

HRFSidebarGroup *HRFSidebar::makeGroup(std::size_t index, QWidget *parent)
{
    auto *group =
        new HRFSidebarGroup(HRFViewConfigManager::sharedManager().groups()[index], parent);
    group->setObjectName(u"group.%1"_s.arg(index));
    m_groups.push_back(group);
    for (HRFSidebarField *field : group->fields()) {
        connect(field, &HRFSidebarField::didEdit, this, [this, field](const QVariant &value) {
            edit(field->column(), value);
            makeStale(field); // shows the value as it was understood
        });
    }
    connect(group, &HRFSidebarGroup::didToggle, this, [this, index](bool isExpanded) {
        HRFViewConfigManager::sharedManager().setCollapsed(index, !isExpanded);
        m_refresh.start();
    });
    return group;
}

void HRFSidebar::configure()
{
    auto *dialog = new HRFSidebarDialog(window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void HRFSidebar::commit()
{
    for (const HRFSidebarGroup *group : m_groups)
        for (HRFSidebarField *field : group->fields())
            field->commit();
}

void HRFSidebar::finishEditing()
{
    commit();
    for (const HRFSidebarGroup *group : m_groups)
        for (HRFSidebarField *field : group->fields())
            field->revert();
}

void HRFSidebar::focusFirstField()
{
    for (const HRFSidebarGroup *group : m_groups) {
        const auto found = std::ranges::find_if(group->fields(), [](const HRFSidebarField *field) {
            return field->column().isEditable() && field->widget().isEnabled();
        });
        if (!group->isExpanded() || found == group->fields().end())
            continue;
        QWidget &first = (*found)->widget();
        first.setFocus(Qt::ShortcutFocusReason);
        ensureWidgetVisible(&first);
        return;
    }
}

/// Delete is a key of fields and of the picture; here it never takes files out of the list.
bool HRFSidebar::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete)
        event->accept();
    return QScrollArea::event(event);
}

void HRFSidebar::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    m_refresh.start();
}

void HRFSidebar::selectionDidChange()
{
    const auto &selected = m_list.fileController().selectedObjects();
    std::vector<HRFObjectID> records(selected.size());
    std::ranges::transform(selected, records.begin(), &HRFMetaFile::objectID);
    if (areSame(records, m_records))
        commit(); // only their order is another one
    else
        finishEditing(); // what was typed was meant for the records that were selected
    m_records = std::move(records);
    makeAllStale();
}

void HRFSidebar::makeStale(HRFSidebarField *field)
{
    m_stale.insert(field);
    m_refresh.start();
}

void HRFSidebar::makeAllStale()
{
    for (const HRFSidebarGroup *group : m_groups)
        m_stale.insert(group->fields().begin(), group->fields().end());
    m_isSummaryStale = true;
    m_refresh.start();
}

void HRFSidebar::contextDidChange(const HRFContextChanges &changes)
{
    const QHash<QString, HRFPropertySet> changed = changedProperties(changes);
    if (changed.isEmpty())
        return;
    for (const HRFSidebarGroup *group : m_groups) {
        for (HRFSidebarField *field : group->fields()) {
            const HRFAttributeDescription &attribute = *field->column().attribute();
            // Where a file is follows from its URL and its name.
            if (attribute.isFilePath()
                || changed.value(attribute.entity->name) & HRFPropertyBit(attribute.index))
                makeStale(field);
        }
    }
    const QString shownAbove[] = {HRFMetaFile::entityName(), HRFSystemFile::entityName(),
                                  HRFArtworkProperties::entityName()};
    m_isSummaryStale |= std::ranges::any_of(
        shownAbove, [&](const QString &name) { return changed.contains(name); });
    m_refresh.start();
}

void HRFSidebar::showSummary()
{
    const auto &selected = m_list.fileController().selectedObjects();
    const QLocale locale;
    m_summary->setText(selected.empty() ? tr("No file selected")
                           : selected.size() == 1
                           ? selected.front()->fileInfo().displayFileName()
                           : tr("%1 files").arg(locale.toString(qulonglong(selected.size()))));
}

/// Goes on until some time is used up; the rest waits for the next turn.
void HRFSidebar::refreshSome()
{
    constexpr qint64 mostMilliseconds = 12;
    if (!isVisible())
        return;
    if (std::exchange(m_isSummaryStale, false)) {
        showSummary();
        m_artwork->refresh();
    }
    QElapsedTimer time;
    time.start();
    const auto &records = m_list.fileController().selectedObjects();
    for (const HRFSidebarGroup *group : m_groups) {
        if (!group->isExpanded())
            continue;
        for (HRFSidebarField *field : group->fields()) {
            if (m_stale.erase(field) == 0)
                continue;
            field->show(HRFCommonValue::of(field->column(), records));
            if (time.hasExpired(mostMilliseconds))
                return m_refresh.start();
        }
    }
}

void HRFSidebar::edit(const HRFListColumn &column, const QVariant &value)
{
    HRFMainContext &context = m_list.managedObjectContext();
    context.processPendingChanges(); // they are no part of this edit
    bool changesAnything = false;
    for (const HRFObjectID record : m_records)
        if (auto *file = context.object<HRFMetaFile>(record))
            changesAnything |= column.setValue(*file, value);
    if (changesAnything)
        m_list.setUndoActionName(column.undoActionName());
    context.processPendingChanges();
}
