#include "Native/NativeColorCombo.h"

#include "Common/DialogKeyboard.h"
#include "Common/IconEngine.h"
#include "Common/NativeText.h"
#include "Dialog/KivUserHand.h"
#include "Native/NativeDescription.h"

#include <QColorDialog>
#include <QPainter>

#include <algorithm>

namespace {

QColor ToColor(const KivColor& color)
{
    return QColor(static_cast<int>(color.red), static_cast<int>(color.green), static_cast<int>(color.blue));
}

// The border contrasts with the surface: white on white has to be seen, black on black too.
QIcon Swatch(const QColor& color)
{
    return IconEngine::Icon(
        [color](QPainter& painter, const QRectF& rectangle, const QColor& ink) {
            const qreal line = std::max(1.0, rectangle.height() / 16.0);
            const qreal inset = line * 1.5;
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.fillRect(rectangle.adjusted(inset, inset, -inset, -inset), ink);
            painter.fillRect(rectangle.adjusted(inset + line, inset + line, -inset - line, -inset - line),
                             color);
        },
        IconEngine::Background::List);
}

// Four swatches in one: where colors are mixed.
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
        IconEngine::Background::List);
}

unsigned int Part(int component)
{
    return static_cast<unsigned int>(component);
}

} // namespace

KivColor NativeColorCombo::Color() const
{
    KivColor color;
    Combo()->GetSelectedColor(&color.red, &color.green, &color.blue);
    return color;
}

QString NativeColorCombo::SpokenValue() const
{
    return !TreeNode() || TreeNode()->GetSelect() < 0 ? QString() : ToQt(KivSpokenColorName(Color()));
}

QStringList NativeColorCombo::Lines() const
{
    return NativeCombo::Lines() << WindowText("MoreColors");
}

QIcon NativeColorCombo::LineIcon(int line) const
{
    const auto palette = KivColorPalette();
    const auto index = static_cast<std::size_t>(line);
    if (index < palette.size()) return Swatch(ToColor(palette[index].color));
    if (line >= TreeNode()->GetLineCount()) return Mixer();
    // The color of the user's own is the last of the tree's lines.
    return Swatch(ToColor(Color()));
}

void NativeColorCombo::Choose(int line)
{
    if (line < TreeNode()->GetLineCount()) {
        NativeCombo::Choose(line);
    } else if (!_passing) {
        OpenMixer();
    }
}

QColorDialog* NativeColorCombo::OpenMixer()
{
    auto* mixer = new QColorDialog(ToColor(Color()), this);
    mixer->setAttribute(Qt::WA_DeleteOnClose);
    mixer->setWindowTitle(NativeDescription(*TreeNode()).Name());
    connect(mixer, &QColorDialog::colorSelected, this, [this](const QColor& chosen) {
        if (TreeNode())
            KivUserHand::ChooseColor(*Combo(), Part(chosen.red()), Part(chosen.green()), Part(chosen.blue()));
    });
    // The popup of the combo has the keyboard until the event is over that chose the entry.
    DialogKeyboard::OpenAfterEvent(*mixer);
    return mixer;
}

void NativeColorCombo::keyPressEvent(QKeyEvent* event)
{
    _passing = true;
    NativeCombo::keyPressEvent(event);
    _passing = false;
}

void NativeColorCombo::wheelEvent(QWheelEvent* event)
{
    _passing = true;
    NativeCombo::wheelEvent(event);
    _passing = false;
}
