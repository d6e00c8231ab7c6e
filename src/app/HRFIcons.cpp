#include "app/HRFIcons.h"

#include "kit/HRFAssert.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace {

/// Draws an icon in the colours of the present palette.
class TintedIcon : public QIconEngine
{
public:
    TintedIcon(QString name, QByteArray drawing)
        : m_name(std::move(name)), m_drawing(std::move(drawing))
    {
    }

    void paint(QPainter *painter, const QRect &rectangle, QIcon::Mode mode, QIcon::State) override
    {
        QByteArray drawing = m_drawing;
        drawing.replace("currentColor", colour(mode).name().toLatin1());
        painter->save();
        painter->setOpacity(painter->opacity() * (mode == QIcon::Disabled ? disabledOpacity : 1));
        QSvgRenderer(drawing).render(painter, rectangle);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        const QString key = u"lirra/%1/%2x%3/%4/%5"_s.arg(m_name)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(int(mode))
                                .arg(colour(mode).name());
        QPixmap image;
        if (QPixmapCache::find(key, &image))
            return image;
        image = QPixmap(size);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        paint(&painter, QRect({}, size), mode, state);
        painter.end();
        QPixmapCache::insert(key, image);
        return image;
    }

    QIconEngine *clone() const override { return new TintedIcon(*this); }

private:
    static constexpr double disabledOpacity = 0.4;

    static QColor colour(QIcon::Mode mode)
    {
        return QGuiApplication::palette().color(mode == QIcon::Selected ? QPalette::HighlightedText
                                                                        : QPalette::WindowText);
    }

    const QString m_name;
    const QByteArray m_drawing;
};

} // namespace

QIcon HRFIcons::named(const QString &name)
{
    QFile drawing(u":/lirra/icons/%1.svg"_s.arg(name));
    HRFRequire(drawing.open(QIODevice::ReadOnly), "icon");
    return QIcon(new TintedIcon(name, drawing.readAll()));
}
