#include "app/HRFFilterMenu.h"

#include "app/HRFListColumn.h"
#include "kit/HRFCollation.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStandardItemModel>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// More rows are of no use to anybody; the others can be searched for.
constexpr std::size_t mostRows = 300;
constexpr int textRole = Qt::UserRole;

QString shown(const HRFListFilter::Value &value)
{
    const QString text =
        value.text.isEmpty() ? HRFFilterMenu::tr("(no value)") : value.text.simplified();
    return u"%1   (%2)"_s.arg(text).arg(value.count);
}

} // namespace

HRFFilterMenu::HRFFilterMenu(HRFListFilter &filter, int column, QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_filter(filter)
    , m_column(column)
    , m_values(filter.valuesOf(column))
    , m_collator(HRFCollation::naturalOrder())
{
    setObjectName(u"filterMenu"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    setAccessibleName(tr("Filter by “%1”").arg(HRFListColumns::all()[std::size_t(column)].title));
    if (const auto allowed = filter.allowedTexts(column))
        m_allowed = *allowed;
    else
        for (const HRFListFilter::Value &value : m_values)
            m_allowed.insert(value.text);
    makeWidgets();
    showFoundValues();
}

void HRFFilterMenu::makeWidgets()
{
    constexpr int margin = 6;
    m_search = new QLineEdit(this);
    m_search->setObjectName(u"filterSearch"_s);
    m_search->setAccessibleName(tr("Search values"));
    m_search->setPlaceholderText(tr("Search values"));
    m_search->setClearButtonEnabled(true);
    m_search->setToolTip(tr("Press Return to show nothing but what is found"));
    m_all = new QCheckBox(tr("All values"), this);
    m_all->setObjectName(u"filterAll"_s);
    m_rows = new QStandardItemModel(this);
    auto *list = new QListView(this);
    list->setObjectName(u"filterValues"_s);
    list->setAccessibleName(tr("Values"));
    list->setModel(m_rows);
    list->setUniformItemSizes(true);
    list->setEditTriggers(QListView::NoEditTriggers);
    list->setFrameShape(QFrame::NoFrame);
    m_rest = new QLabel(this);
    m_rest->setEnabled(false);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_search, m_all, list, m_rest})
        layout->addWidget(widget);
    connect(m_search, &QLineEdit::textChanged, this, &HRFFilterMenu::showFoundValues);
    connect(m_search, &QLineEdit::returnPressed, this, &HRFFilterMenu::allowNothingButFound);
    connect(m_all, &QCheckBox::clicked, this, [this](bool isChecked) { allowFound(isChecked); });
    connect(m_rows, &QStandardItemModel::itemChanged, this,
            [this](const QStandardItem *item) { itemDidChange(*item); });
    setFocusProxy(m_search);
}

void HRFFilterMenu::showAt(const QPoint &corner)
{
    constexpr int width = 300;
    constexpr int highest = 400;
    constexpr int heightOfRest = 110;
    const QRect room = screen()->availableGeometry();
    const auto rows = int(std::min(m_values.size(), mostRows));
    resize(width, std::min(heightOfRest + rows * fontMetrics().height(), highest));
    move(std::clamp(corner.x(), room.left(), std::max(room.left(), room.right() - width)),
         std::clamp(corner.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    show();
    m_search->setFocus();
}

void HRFFilterMenu::showFoundValues()
{
    const QScopedValueRollback isFilling(m_isFilling, true);
    m_found.clear();
    m_rows->clear();
    for (const HRFListFilter::Value &value : m_values)
        if (value.text.contains(m_search->text(), Qt::CaseInsensitive))
            m_found.push_back(&value);
    // To put those in order that nobody sees would take many times as long.
    const auto end = m_found.begin() + std::ptrdiff_t(std::min(m_found.size(), mostRows));
    std::partial_sort(m_found.begin(), end, m_found.end(),
                      [this](const HRFListFilter::Value *left, const HRFListFilter::Value *right) {
                          return m_collator.compare(left->text, right->text) < 0;
                      });
    std::for_each(m_found.begin(), end, [this](const auto *value) { addRow(*value); });
    m_rest->setText(tr("%1 of %2 values are shown").arg(m_rows->rowCount()).arg(m_found.size()));
    m_rest->setVisible(m_found.size() > mostRows);
    showStateOfAll();
}

void HRFFilterMenu::addRow(const HRFListFilter::Value &value)
{
    auto *item = new QStandardItem(shown(value));
    item->setCheckable(true);
    item->setCheckState(isAllowed(value.text) ? Qt::Checked : Qt::Unchecked);
    item->setData(value.text, textRole);
    m_rows->appendRow(item);
}

void HRFFilterMenu::showStateOfAll()
{
    const auto count = std::size_t(std::ranges::count_if(
        m_found, [this](const HRFListFilter::Value *value) { return isAllowed(value->text); }));
    m_all->setCheckState(count == 0                    ? Qt::Unchecked
                             : count == m_found.size() ? Qt::Checked
                                                       : Qt::PartiallyChecked);
    m_all->setText(m_search->text().isEmpty() ? tr("All values") : tr("All found values"));
}

bool HRFFilterMenu::isAllowed(const QString &text) const
{
    return m_allowed.contains(text);
}

void HRFFilterMenu::itemDidChange(const QStandardItem &item)
{
    if (m_isFilling)
        return;
    HRFListFilter::Texts texts = m_allowed;
    const QString text = item.data(textRole).toString();
    if (item.checkState() == Qt::Checked)
        texts.insert(text);
    else
        texts.remove(text);
    allow(texts);
}

void HRFFilterMenu::allowFound(bool isAllowed)
{
    HRFListFilter::Texts texts = m_allowed;
    for (const HRFListFilter::Value *value : m_found) {
        if (isAllowed)
            texts.insert(value->text);
        else
            texts.remove(value->text);
    }
    allow(texts);
    showFoundValues();
}

void HRFFilterMenu::allowNothingButFound()
{
    HRFListFilter::Texts texts;
    for (const HRFListFilter::Value *value : m_found)
        texts.insert(value->text);
    allow(texts);
    close();
}

/// All values let through are no filter.
void HRFFilterMenu::allow(const HRFListFilter::Texts &texts)
{
    m_allowed = texts;
    const bool isAll = std::ranges::all_of(
        m_values, [this](const HRFListFilter::Value &value) { return isAllowed(value.text); });
    m_filter.setAllowedTexts(m_column,
                             isAll ? std::optional<HRFListFilter::Texts>() : std::optional(texts));
    showStateOfAll();
}
