#include "NativeColourCombo.h"

#include "Dialog/KivUserHand.h"
#include "IconEngine.h"
#include "NativeDescription.h"
#include "NativeText.h"

#include <QColorDialog>
#include <QPainter>

#include <algorithm>

namespace {

QColor ToColor(const KivColour& colour)
{
    return QColor(static_cast<int>(colour.red), static_cast<int>(colour.green),
                  static_cast<int>(colour.blue));
}

// The border contrasts with the surface: white on white has to be seen, black on black too.
QIcon Swatch(const QColor& colour)
{
    return IconEngine::Icon(
        [colour](QPainter& painter, const QRectF& rectangle, const QColor& ink) {
            const qreal line = std::max(1.0, rectangle.height() / 16.0);
            const qreal inset = line * 1.5;
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.fillRect(rectangle.adjusted(inset, inset, -inset, -inset), ink);
            painter.fillRect(rectangle.adjusted(inset + line, inset + line, -inset - line, -inset - line),
                             colour);
        },
        IconEngine::Place::List);
}

// Four swatches in one: where colours are mixed.
QIcon Mixer()
{
    return IconEngine::Icon(
        [](QPainter& painter, const QRectF& rectangle, const QColor& ink) {
            const qreal line = std::max(1.0, rectangle.height() / 16.0), inset = line * 1.5;
            const QRectF all = rectangle.adjusted(inset, inset, -inset, -inset);
            const QRectF inner = all.adjusted(line, line, -line, -line);
            const QSizeF quarter = inner.size() / 2.0;
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.fillRect(all, ink);
            painter.fillRect(QRectF(inner.topLeft(), quarter), Qt::red);
            painter.fillRect(QRectF(QPointF(inner.center().x(), inner.top()), quarter), Qt::yellow);
            painter.fillRect(QRectF(QPointF(inner.left(), inner.center().y()), quarter), Qt::blue);
            painter.fillRect(QRectF(inner.center(), quarter), Qt::green);
        },
        IconEngine::Place::List);
}

unsigned int Part(int component)
{
    return static_cast<unsigned int>(component);
}

} // namespace

KivColour NativeColourCombo::Colour() const
{
    KivColour colour;
    Combo()->GetSelectedColor(&colour.red, &colour.green, &colour.blue);
    return colour;
}

void NativeColourCombo::ShowNode()
{
    NativeCombo::ShowNode();
    setAccessibleName(NativeDescription(*TreeNode()).Name() + ": " + ToQt(KivSpokenColourName(Colour())));
}

QStringList NativeColourCombo::Lines() const
{
    return NativeCombo::Lines() << WindowText("MoreColours");
}

QIcon NativeColourCombo::LineIcon(int line) const
{
    const auto palette = KivColourPalette();
    const auto index = static_cast<std::size_t>(line);
    if (index < palette.size()) return Swatch(ToColor(palette[index].colour));
    if (line >= TreeNode()->GetLineCount()) return Mixer();
    // The colour of the user's own is the last of the tree's lines.
    return Swatch(ToColor(Colour()));
}

void NativeColourCombo::Choose(int line)
{
    if (line < TreeNode()->GetLineCount()) {
        NativeCombo::Choose(line);
    } else if (!_passing) {
        OpenMixer();
    }
}

QColorDialog* NativeColourCombo::OpenMixer()
{
    auto* mixer = new QColorDialog(ToColor(Colour()), this);
    mixer->setAttribute(Qt::WA_DeleteOnClose);
    mixer->setWindowTitle(NativeDescription(*TreeNode()).Name());
    connect(mixer, &QColorDialog::colorSelected, this, [this](const QColor& chosen) {
        if (TreeNode())
            KivUserHand::ChooseColour(*Combo(), Part(chosen.red()), Part(chosen.green()),
                                      Part(chosen.blue()));
    });
    mixer->open();
    return mixer;
}

void NativeColourCombo::keyPressEvent(QKeyEvent* event)
{
    _passing = true;
    NativeCombo::keyPressEvent(event);
    _passing = false;
}

void NativeColourCombo::wheelEvent(QWheelEvent* event)
{
    _passing = true;
    NativeCombo::wheelEvent(event);
    _passing = false;
}
