#include "app/HRFSidebarField.h"

#include "app/HRFSidebarTextField.h"
#include "app/HRFStars.h"

#include <QCheckBox>
#include <QPainter>
#include <QStyleOptionFocusRect>

using namespace Qt::StringLiterals;
using Kind = HRFListColumnKind;

namespace {

/// A box that is neither on nor off where records differ. The user turns it on or off.
class Box : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    void nextCheckState() override
    {
        setCheckState(checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }
};

class BoxField : public HRFSidebarField
{
public:
    BoxField(const HRFListColumn &column, QWidget *parent)
        : BoxField(column, *new Box(column.title, parent))
    {
    }

    void show(const HRFCommonValue &common) override
    {
        const auto same = common.value.toBool() ? Qt::Checked : Qt::Unchecked;
        m_box.setCheckState(common.isSame ? same : Qt::PartiallyChecked);
        const QString note = common.isSame ? QString() : multipleValues();
        m_box.setToolTip(note);
        m_box.setAccessibleDescription(note);
        m_box.setEnabled(common.recordCount > 0);
    }

private:
    BoxField(const HRFListColumn &column, Box &box) : HRFSidebarField(column, box), m_box(box)
    {
        connect(&box, &QCheckBox::clicked, this,
                [this] { Q_EMIT didEdit(m_box.checkState() == Qt::Checked); });
    }

    Box &m_box;
};

/// Stars with their note beside them.
class Stars : public HRFStarsEditor
{
public:
    explicit Stars(QWidget *parent) : HRFStarsEditor(parent)
    {
        constexpr int margin = 8;
        setAutoFillBackground(false);
        setFixedHeight(fontMetrics().height() + margin);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        HRFStarsEditor::paintEvent(event);
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::PlaceholderText));
        const QRect place = rect().adjusted(HRFStars::width, 0, 0, 0);
        painter.drawText(place, Qt::AlignVCenter,
                         fontMetrics().elidedText(note(), Qt::ElideRight, place.width()));
        if (!hasFocus())
            return;
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
};

class StarsField : public HRFSidebarField
{
public:
    StarsField(const HRFListColumn &column, QWidget *parent)
        : StarsField(column, *new Stars(parent))
    {
    }

    void show(const HRFCommonValue &common) override
    {
        if (common.isSame)
            m_stars.setStars(HRFStars::starsOf(common.value.toLongLong()));
        else
            m_stars.setDiffering(multipleValues());
        m_stars.setEnabled(common.recordCount > 0);
    }

private:
    StarsField(const HRFListColumn &column, Stars &stars)
        : HRFSidebarField(column, stars), m_stars(stars)
    {
        connect(&stars, &HRFStarsEditor::didChoose, this, [this] {
            const int rating = HRFStars::ratingOf(m_stars.stars());
            Q_EMIT didEdit(rating > 0 ? QVariant(qlonglong(rating)) : QVariant());
        });
    }

    Stars &m_stars;
};

} // namespace

HRFSidebarField::HRFSidebarField(const HRFListColumn &column, QWidget &widget)
    : QObject(&widget), m_column(column), m_widget(&widget)
{
    widget.setObjectName(u"field."_s + column.name);
    widget.setAccessibleName(column.title);
}

QString HRFSidebarField::multipleValues()
{
    return tr("Multiple values");
}

HRFSidebarField *HRFSidebarField::make(const HRFListColumn &column, QWidget *parent)
{
    switch (column.kind) {
    case Kind::CheckBox:
        return new BoxField(column, parent);
    case Kind::Rating:
        return new StarsField(column, parent);
    default:
        return HRFSidebarTextField::make(column, parent);
    }
}
