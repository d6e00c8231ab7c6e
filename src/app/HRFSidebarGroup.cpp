#include "app/HRFSidebarGroup.h"

#include "app/HRFSidebarField.h"
#include "store/HRFViewConfigManager.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;

namespace {

/// Labels of all groups have the same room, so that their fields stand below each other.
constexpr int labelWidth = 92;
constexpr int numberWidth = 76;

const HRFListColumn &columnNamed(const QString &name)
{
    return HRFListColumns::all()[std::size_t(HRFListColumns::indexOf(name))];
}

/// A number and how many there are of it: "trackNumber" and "trackTotal".
bool arePair(const QString &number, const QString &total)
{
    return number.endsWith("Number"_L1) && total.endsWith("Total"_L1)
        && QStringView(number).chopped(6) == QStringView(total).chopped(5);
}

} // namespace

HRFSidebarGroup::HRFSidebarGroup(const HRFTagsViewGroup &group, QWidget *parent)
    : QWidget(parent)
    , m_title(new QToolButton(this))
    , m_body(new QWidget(this))
    , m_grid(new QGridLayout(m_body))
{
    constexpr int indent = 4;
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    m_title->setText(QString(group.title).replace(u'&', u"&&"_s));
    m_title->setAccessibleName(group.title);
    m_title->setObjectName(u"title"_s);
    m_title->setAutoRaise(true);
    m_title->setFocusPolicy(Qt::TabFocus);
    m_title->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_title->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    layout->addWidget(m_title);
    layout->addWidget(m_body);
    m_grid->setContentsMargins(indent, 0, indent, indent);
    m_grid->setVerticalSpacing(indent);
    m_grid->setHorizontalSpacing(2 * indent);
    m_grid->setColumnMinimumWidth(0, labelWidth);
    m_grid->setColumnStretch(1, 1);
    addFields(group.attributeNames);
    connect(m_title, &QToolButton::clicked, this, [this] {
        showFields(!m_isExpanded);
        Q_EMIT didToggle(m_isExpanded);
    });
    showFields(!group.isCollapsed);
}

void HRFSidebarGroup::showFields(bool isExpanded)
{
    m_isExpanded = isExpanded;
    m_title->setArrowType(isExpanded ? Qt::DownArrow : Qt::RightArrow);
    m_title->setToolTip(isExpanded ? tr("Hide the fields of this group")
                                   : tr("Show the fields of this group"));
    m_body->setVisible(isExpanded);
}

HRFSidebarField &HRFSidebarGroup::makeField(const HRFListColumn &column, QWidget *parent)
{
    m_fields.push_back(HRFSidebarField::make(column, parent));
    return *m_fields.back();
}

void HRFSidebarGroup::addFields(const QStringList &names)
{
    for (qsizetype index = 0; index < names.size(); ++index) {
        const HRFListColumn &column = columnNamed(names[index]);
        if (index + 1 < names.size() && arePair(names[index], names[index + 1])) {
            ++index;
            const std::size_t first = m_fields.size();
            QWidget *pair = makePair(column, columnNamed(names[index]));
            addRow(column, *pair, *m_fields[first]);
            continue;
        }
        const HRFSidebarField &field = makeField(column, m_body);
        if (column.kind == Kind::Number && column.isEditable())
            field.widget().setMaximumWidth(numberWidth);
        addRow(column, field.widget(), field);
    }
}

QWidget *HRFSidebarGroup::makePair(const HRFListColumn &number, const HRFListColumn &total)
{
    auto *pair = new QWidget(m_body);
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    for (const HRFListColumn *column : {&number, &total}) {
        if (column == &total)
            layout->addWidget(new QLabel(tr("of"), pair));
        QWidget &field = makeField(*column, pair).widget();
        field.setMaximumWidth(numberWidth);
        layout->addWidget(&field);
    }
    layout->addStretch();
    return pair;
}

void HRFSidebarGroup::addRow(const HRFListColumn &column, QWidget &field,
                             const HRFSidebarField &labelled)
{
    const int row = m_grid->rowCount();
    m_grid->addWidget(&field, row, 1);
    if (column.kind == Kind::CheckBox && column.isEditable())
        return; // has its title beside it
    auto *label = new QLabel(column.title, m_body);
    label->setBuddy(&labelled.widget());
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const bool isHigh = field.sizePolicy().verticalPolicy() == QSizePolicy::Expanding;
    label->setContentsMargins(0, isHigh ? 4 : 0, 0, 0);
    label->setToolTip(column.attribute()->localizedDescription());
    label->setForegroundRole(QPalette::PlaceholderText);
    m_grid->addWidget(label, row, 0, isHigh ? Qt::AlignTop : Qt::Alignment());
}
