#include "app/HRFSidebarDialog.h"

#include "app/HRFInputError.h"
#include "app/HRFListColumn.h"
#include "store/HRFAttributeManager.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

enum Role {
    Name = Qt::UserRole, ///< of a field's attribute
    Names = Qt::UserRole, ///< of a group's attributes
    IsCollapsed,
};

constexpr QSize usualSize(760, 480);

QListWidget *makeList(const QString &objectName, const QString &title, QWidget *parent)
{
    auto *list = new QListWidget(parent);
    list->setObjectName(objectName);
    list->setAccessibleName(title);
    list->setDragDropMode(QAbstractItemView::InternalMove);
    list->setDefaultDropAction(Qt::MoveAction);
    return list;
}

/// Edits the names of groups, of which none is empty.
class NameDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                          const QModelIndex & /*index*/) const override
    {
        static const QRegularExpression notBlank(uR"(.*\S.*)"_s);
        auto *field = new QLineEdit(parent);
        field->setObjectName(u"groupName"_s);
        field->setAccessibleName(HRFSidebarDialog::tr("Name of the Group"));
        field->setFrame(false);
        field->setValidator(new QRegularExpressionValidator(notBlank, field));
        auto *error = new HRFInputError(*field);
        connect(field, &QLineEdit::textChanged, error, [field, error] {
            error->setReason(field->hasAcceptableInput()
                                 ? QString()
                                 : HRFSidebarDialog::tr("A group needs a name."));
            error->explain();
        });
        return field;
    }

    /// Not even when another group is chosen.
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override
    {
        if (static_cast<QLineEdit *>(editor)->hasAcceptableInput())
            QStyledItemDelegate::setModelData(editor, model, index);
    }
};

/// A list or tree under its title, with buttons below it.
QWidget *makePane(const QString &title, const std::vector<QWidget *> &content,
                  const std::vector<QAbstractButton *> &buttons)
{
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(title, pane);
    label->setBuddy(content.back());
    layout->addWidget(label);
    for (QWidget *widget : content)
        layout->addWidget(widget);
    auto *row = new QHBoxLayout;
    for (QAbstractButton *button : buttons)
        row->addWidget(button);
    row->addStretch();
    layout->addLayout(row);
    return pane;
}

QPushButton *makeButton(const QString &objectName, const QString &text, QWidget *parent)
{
    auto *button = new QPushButton(text, parent);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    return button;
}

QListWidgetItem *makeFieldItem(const QString &name)
{
    const HRFAttributeDescription *attribute =
        HRFAttributeManager::sharedManager().attributeNamed(name);
    auto *item = new QListWidgetItem(attribute->displayName());
    item->setData(Name, name);
    return item;
}

} // namespace

HRFSidebarDialog::HRFSidebarDialog(QWidget *parent)
    : QDialog(parent)
    , m_groups(makeList(u"groups"_s, tr("Groups"), this))
    , m_fields(makeList(u"fields"_s, tr("Fields of the Group"), this))
    , m_choice(new QTreeWidget(this))
    , m_search(new QLineEdit(this))
{
    setObjectName(u"sidebarDialog"_s);
    setWindowTitle(tr("Configure Sidebar"));
    auto *panes = new QHBoxLayout;
    for (QWidget *pane : {makeGroupsPane(), makeFieldsPane(), makeChoicePane()})
        panes->addWidget(pane);
    auto *buttons = new QDialogButtonBox(
        QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::RestoreDefaults, this);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    buttons->button(QDialogButtonBox::RestoreDefaults)->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &HRFSidebarDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &HRFSidebarDialog::reject);
    connect(buttons->button(QDialogButtonBox::RestoreDefaults), &QPushButton::clicked, this,
            [this] { setGroups(HRFViewConfigManager::defaultGroups()); });
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(panes);
    layout->addWidget(buttons);
    setGroups(HRFViewConfigManager::sharedManager().groups());
    resize(usualSize);
}

/// Two buttons that move the current item of a list.
std::vector<QAbstractButton *>
HRFSidebarDialog::makeMovers(QListWidget &list, const QString &upTitle, const QString &downTitle)
{
    const auto make = [&](const QString &title, Qt::ArrowType arrow, int step) {
        auto *button = new QToolButton(this);
        button->setObjectName(list.objectName() + (step < 0 ? u"Up"_s : u"Down"_s));
        button->setArrowType(arrow);
        button->setAccessibleName(title);
        button->setToolTip(title);
        connect(button, &QAbstractButton::clicked, this, [this, &list, step] { move(list, step); });
        return button;
    };
    return {make(upTitle, Qt::UpArrow, -1), make(downTitle, Qt::DownArrow, 1)};
}

void HRFSidebarDialog::move(QListWidget &list, int step)
{
    const int row = list.currentRow();
    if (row < 0 || row + step < 0 || row + step >= list.count())
        return;
    {
        const QSignalBlocker isOnTheWay(list);
        QListWidgetItem *item = list.takeItem(row);
        list.insertItem(row + step, item);
        list.setCurrentItem(item);
    }
    if (&list == m_fields)
        keepFields();
}

QWidget *HRFSidebarDialog::makeGroupsPane()
{
    m_groups->setItemDelegate(new NameDelegate(m_groups));
    m_groups->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
    m_groups->setToolTip(tr("Drag groups to order them, double-click one to name it"));
    connect(m_groups, &QListWidget::currentItemChanged, this, &HRFSidebarDialog::showFields);
    auto *addition = makeButton(u"addGroup"_s, tr("&New"), this);
    connect(addition, &QAbstractButton::clicked, this, &HRFSidebarDialog::addGroup);
    m_removeGroup = makeButton(u"removeGroup"_s, tr("&Delete"), this);
    connect(m_removeGroup, &QAbstractButton::clicked, this, &HRFSidebarDialog::removeGroup);
    const auto movers = makeMovers(*m_groups, tr("Move Group Up"), tr("Move Group Down"));
    return makePane(tr("&Groups"), {m_groups}, {movers[0], movers[1], addition, m_removeGroup});
}

QWidget *HRFSidebarDialog::makeFieldsPane()
{
    m_fields->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_fields->setToolTip(tr("Drag fields to order them"));
    connect(m_fields, &QListWidget::itemSelectionChanged, this, &HRFSidebarDialog::validate);
    connect(m_fields->model(), &QAbstractItemModel::rowsMoved, this, &HRFSidebarDialog::keepFields);
    m_removeField = makeButton(u"removeField"_s, tr("&Remove"), this);
    connect(m_removeField, &QAbstractButton::clicked, this, &HRFSidebarDialog::removeFields);
    const auto movers = makeMovers(*m_fields, tr("Move Field Up"), tr("Move Field Down"));
    return makePane(tr("&Fields of the Group"), {m_fields}, {movers[0], movers[1], m_removeField});
}

QWidget *HRFSidebarDialog::makeChoicePane()
{
    m_choice->setObjectName(u"choice"_s);
    m_choice->setAccessibleName(tr("Other Fields"));
    m_choice->setHeaderHidden(true);
    m_choice->setSelectionMode(QAbstractItemView::ExtendedSelection);
    connect(m_choice, &QTreeWidget::itemSelectionChanged, this, &HRFSidebarDialog::validate);
    connect(m_choice, &QTreeWidget::itemDoubleClicked, this, &HRFSidebarDialog::addFields);
    m_search->setObjectName(u"search"_s);
    m_search->setAccessibleName(tr("Find Field"));
    m_search->setPlaceholderText(tr("Find Field"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, &HRFSidebarDialog::showChoice);
    m_addField = makeButton(u"addField"_s, tr("&Add to Group"), this);
    connect(m_addField, &QAbstractButton::clicked, this, &HRFSidebarDialog::addFields);
    return makePane(tr("&Other Fields"), {m_search, m_choice}, {m_addField});
}

void HRFSidebarDialog::setGroups(const HRFViewConfigManager::Groups &groups)
{
    m_groups->clear();
    for (const HRFTagsViewGroup &group : groups) {
        auto *item = new QListWidgetItem(group.title, m_groups);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setData(Names, group.attributeNames);
        item->setData(IsCollapsed, group.isCollapsed);
    }
    m_groups->setCurrentRow(0);
    showFields();
}

HRFViewConfigManager::Groups HRFSidebarDialog::groups() const
{
    HRFViewConfigManager::Groups groups;
    for (int row = 0; row < m_groups->count(); ++row) {
        const QListWidgetItem &item = *m_groups->item(row);
        groups.push_back(
            {item.text(), item.data(Names).toStringList(), item.data(IsCollapsed).toBool()});
    }
    return groups;
}

void HRFSidebarDialog::accept()
{
    HRFViewConfigManager::sharedManager().setGroups(groups());
    QDialog::accept();
}

void HRFSidebarDialog::addGroup()
{
    auto *item = new QListWidgetItem(tr("New Group"));
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    m_groups->insertItem(m_groups->currentRow() + 1, item);
    m_groups->setCurrentItem(item);
    m_groups->editItem(item);
}

void HRFSidebarDialog::removeGroup()
{
    delete m_groups->currentItem();
    showFields();
}

void HRFSidebarDialog::showFields()
{
    m_fields->clear();
    if (const QListWidgetItem *group = m_groups->currentItem())
        for (const QString &name : group->data(Names).toStringList())
            m_fields->addItem(makeFieldItem(name));
    showChoice();
}

/// The fields as they are listed become those of the group.
void HRFSidebarDialog::keepFields()
{
    QStringList names;
    for (int row = 0; row < m_fields->count(); ++row)
        names.append(m_fields->item(row)->data(Name).toString());
    m_groups->currentItem()->setData(Names, names);
    showChoice();
}

void HRFSidebarDialog::addFields()
{
    if (!m_groups->currentItem())
        return;
    int row = m_fields->count();
    for (const QListWidgetItem *selected : m_fields->selectedItems())
        row = m_fields->row(selected) + 1;
    for (const QTreeWidgetItem *item : m_choice->selectedItems())
        if (const QString name = item->data(0, Name).toString(); !name.isEmpty())
            m_fields->insertItem(row++, makeFieldItem(name));
    keepFields();
}

void HRFSidebarDialog::removeFields()
{
    qDeleteAll(m_fields->selectedItems());
    keepFields();
}

/// What no group has; a field stands in one place alone.
void HRFSidebarDialog::showChoice()
{
    QStringList used;
    for (const HRFTagsViewGroup &group : groups())
        used.append(group.attributeNames);
    m_choice->clear();
    for (const HRFListColumnGroup &part : HRFListColumns::groups()) {
        auto *heading = new QTreeWidgetItem({part.title});
        heading->setFlags(Qt::ItemIsEnabled);
        for (const int index : part.columns) {
            const HRFListColumn &column = HRFListColumns::all()[std::size_t(index)];
            if (!column.values || used.contains(column.name)
                || !column.title.contains(m_search->text().trimmed(), Qt::CaseInsensitive))
                continue;
            auto *item = new QTreeWidgetItem(heading, {column.title});
            item->setData(0, Name, column.name);
        }
        if (heading->childCount() > 0)
            m_choice->addTopLevelItem(heading);
        else
            delete heading;
    }
    m_choice->expandAll();
    validate();
}

void HRFSidebarDialog::validate()
{
    m_removeGroup->setEnabled(m_groups->currentItem());
    m_removeField->setEnabled(!m_fields->selectedItems().isEmpty());
    m_addField->setEnabled(m_groups->currentItem() && !m_choice->selectedItems().isEmpty());
}
