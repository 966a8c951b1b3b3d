#include "app/host/SvgIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace quillon_ed {

namespace {

constexpr char Ink[] = "#101010";

class SvgIconEngine : public QIconEngine {
public:
    explicit SvgIconEngine(QByteArray svg) : moSvg(std::move(svg)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QGuiApplication::palette();
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        QByteArray inked = moSvg;
        inked.replace(Ink, palette.color(QPalette::Active, role).name().toLatin1());
        QSvgRenderer renderer(inked);
        painter->save();
        if (mode == QIcon::Disabled) painter->setOpacity(0.35);
        renderer.render(painter, QRectF(rect));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new SvgIconEngine(moSvg); }

private:
    QByteArray moSvg;
};

} // namespace

QIcon SvgIcon(const QString& name)
{
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new SvgIconEngine(file.readAll()));
}

} // namespace quillon_ed
