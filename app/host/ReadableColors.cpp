#include "app/host/ReadableColors.h"

#include <QApplication>
#include <QColor>
#include <QEvent>

#include <algorithm>
#include <cmath>

namespace quillon_ed {

namespace {

constexpr double LeastContrast = 5.2; ///< more than is needed, for the frame of the focus lies over its text
constexpr int Steps = 20;

double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double Contrast(const QColor& one, const QColor& other)
{
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

QColor Mix(const QColor& from, const QColor& to, double share)
{
    const auto part = [share](double a, double b) { return static_cast<float>(a + (b - a) * share); };
    return QColor::fromRgbF(part(from.redF(), to.redF()), part(from.greenF(), to.greenF()),
                            part(from.blueF(), to.blueF()));
}

/// The first of the way from one colour to another that keeps the contrast with all of them, or the end of it.
QColor FirstReadable(const QColor& from, const QColor& to, std::initializer_list<QColor> grounds)
{
    for (int step = 0; step <= Steps; ++step) {
        const QColor mixed = Mix(from, to, double(step) / Steps);
        if (std::all_of(grounds.begin(), grounds.end(),
                        [&](const QColor& ground) { return Contrast(mixed, ground) >= LeastContrast; }))
            return mixed;
    }
    return to;
}

QColor FarthestFrom(const QColor& ground)
{
    return Contrast(Qt::white, ground) > Contrast(Qt::black, ground) ? Qt::white : Qt::black;
}

} // namespace

QColor ReadableColor(const QColor& color, const QColor& ink, std::initializer_list<QColor> grounds)
{
    const QColor& ground = *grounds.begin();
    // What shows through is not the colour that a reader sees.
    const QColor opaque = Mix(ground, color, color.alphaF());
    const QColor nearer = FirstReadable(opaque, ink, grounds);
    return FirstReadable(nearer, FarthestFrom(ground), grounds);
}

QPalette ReadablePalette(QPalette palette)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const auto color = [&](QPalette::ColorRole role) { return palette.color(group, role); };
        const auto ink = [&](QPalette::ColorRole role) { return palette.color(QPalette::Active, role); };
        const auto set = [&](QPalette::ColorRole role, const QColor& readable) {
            if (readable != color(role)) palette.setColor(group, role, readable);
        };
        const QColor window = color(QPalette::Window);
        const QColor base = color(QPalette::Base);
        const QColor alternate = color(QPalette::AlternateBase);
        set(QPalette::WindowText, ReadableColor(color(QPalette::WindowText), ink(QPalette::WindowText), {window}));
        set(QPalette::Text, ReadableColor(color(QPalette::Text), ink(QPalette::Text), {base, alternate}));
        set(QPalette::ButtonText,
            ReadableColor(color(QPalette::ButtonText), ink(QPalette::ButtonText), {color(QPalette::Button)}));
        set(QPalette::PlaceholderText,
            ReadableColor(color(QPalette::PlaceholderText), ink(QPalette::Text), {base, alternate, window}));
        // A selection keeps its text and gives way itself.
        const QColor selected = color(QPalette::HighlightedText);
        set(QPalette::Highlight, ReadableColor(color(QPalette::Highlight), FarthestFrom(selected), {selected}));
    }
    return palette;
}

ReadableColors::ReadableColors()
{
    QApplication::setPalette(ReadablePalette(QApplication::palette()));
    QCoreApplication::instance()->installEventFilter(this);
}

bool ReadableColors::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ApplicationPaletteChange || watched != QCoreApplication::instance()) return false;
    const QPalette readable = ReadablePalette(QApplication::palette());
    if (readable != QApplication::palette()) QApplication::setPalette(readable);
    return false;
}

} // namespace quillon_ed
