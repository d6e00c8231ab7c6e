#include "app/HRFAccessibility.h"

#include "app/HRFArtworkPane.h"
#include "app/HRFStars.h"

#include <QAccessibleWidget>

namespace {

class StarsInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit StarsInterface(HRFStarsEditor &stars)
        : QAccessibleWidget(&stars, QAccessible::Slider), m_stars(stars)
    {
    }

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ValueInterface ? static_cast<QAccessibleValueInterface *>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_stars.accessibleDescription()
                                          : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return m_stars.stars(); }
    void setCurrentValue(const QVariant &value) override { m_stars.choose(value.toInt()); }
    QVariant minimumValue() const override { return 0; }
    QVariant maximumValue() const override { return HRFStars::most; }
    QVariant minimumStepSize() const override { return 1; }

private:
    HRFStarsEditor &m_stars;
};

QAccessibleInterface *makeInterface(const QString & /*className*/, QObject *object)
{
    if (auto *stars = qobject_cast<HRFStarsEditor *>(object))
        return new StarsInterface(*stars);
    if (auto *pane = qobject_cast<HRFArtworkPane *>(object))
        return new QAccessibleWidget(pane, QAccessible::Graphic);
    return nullptr;
}

} // namespace

void HRFInstallAccessibility()
{
    QAccessible::installFactory(&makeInterface);
}
