#include "Native/NativeBubble.h"

#include "Common/Announcement.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// The surface that scrolls with the field, or its window.
QWidget* SurfaceOf(QWidget& field)
{
    QWidget* surface = field.parentWidget() ? field.parentWidget() : &field;
    while (!surface->isWindow() && surface->parentWidget()) {
        const auto* area = qobject_cast<QAbstractScrollArea*>(surface->parentWidget()->parentWidget());
        if (area && area->viewport() == surface->parentWidget()) break;
        surface = surface->parentWidget();
    }
    return surface;
}

constexpr int kWidthInLetters = 44;

} // namespace

void NativeMark::Say(const QString& why)
{
    if (!_sign && why.isEmpty()) return;
    if (!_sign)
        _sign = _line.addAction(_line.style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, &_line),
                                QLineEdit::TrailingPosition);
    _sign->setVisible(!why.isEmpty());
    _sign->setToolTip("<qt>" + why.toHtmlEscaped() + "</qt>"); // what was typed may look like markup
}

NativeBubble::NativeBubble(QWidget& field) : QFrame(SurfaceOf(field)), _field(field), _label(new QLabel(this))
{
    setObjectName("NativeBubble");
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setFocusPolicy(Qt::NoFocus);
    _label->setForegroundRole(QPalette::ToolTipText);
    _label->setTextFormat(Qt::PlainText);
    _label->setWordWrap(true);
    const int gap = fontMetrics().averageCharWidth();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(gap, gap / 2, gap, gap / 2);
    layout->addWidget(_label);
    hide();
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (isVisible()) Place();
    });
}

void NativeBubble::Say(const QString& text)
{
    const QFontMetrics metrics(_label->font());
    const QRect widest(0, 0, kWidthInLetters * metrics.averageCharWidth(), QWIDGETSIZE_MAX);
    _label->setText(text);
    _label->setMinimumSize(metrics.boundingRect(widest, Qt::TextWordWrap, text).size() + QSize(2, 0));
    setAccessibleName(text);
    adjustSize();

    for (QWidget* other : parentWidget()->findChildren<QWidget*>(objectName(), Qt::FindDirectChildrenOnly))
        if (other != this) other->hide();
    Place();
    raise();
    show();
    Announcement::Say(_field, text);
}

// Below the field or above it: within what is seen of the surface, and not over what the user goes on to.
void NativeBubble::Place()
{
    const QRect seen = parentWidget()->visibleRegion().boundingRect();
    const QRect field(_field.mapTo(parentWidget(), QPoint()), _field.size());
    QRect place(QPoint(isRightToLeft() ? field.right() - width() : field.left(), field.bottom() + 1), size());
    place.moveLeft(std::max(seen.left(), std::min(place.left(), seen.right() - width())));
    const QWidget* const next = QApplication::focusWidget();
    const bool isOver = next && next != &_field && parentWidget()->isAncestorOf(next) &&
                        place.intersects(QRect(next->mapTo(parentWidget(), QPoint()), next->size()));
    if ((isOver || place.bottom() > seen.bottom()) && field.top() - height() >= seen.top())
        place.moveBottom(field.top() - 1);
    move(place.topLeft());
}

QString NativeBubble::Text() const
{
    return _label->text();
}
