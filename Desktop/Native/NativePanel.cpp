#include "Native/NativePanel.h"

#include "Common/NativeText.h"
#include "Native/NativeDescription.h"
#include "Native/NativePiece.h"

#include <QAccessible>
#include <QAccessibleEvent>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidthInLetters = 48;

} // namespace

NativePanel* NativePanel::Open(QWidget& beside, const QString& name, const QString& text,
                               const QString& command)
{
    auto* panel = new NativePanel(beside, name, text, command);
    panel->PutBeside(beside);
    panel->show();
    QAccessibleEvent alert(panel, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    return panel;
}

void NativePanel::OpenLongHelp(const QWidget& window)
{
    QWidget* field = window.focusWidget();
    while (field && field != &window && field->whatsThis().isEmpty()) field = field->parentWidget();
    if (!field || field == &window) return;
    const auto* piece = dynamic_cast<NativePiece*>(field);
    QString text = field->whatsThis(), command;
    if (piece && piece->Node()) {
        const NativeDescription description(*piece->Node());
        if (const QString facts = description.Facts(); !facts.isEmpty()) text += "\n\n" + facts;
        command = description.Command();
    }
    Open(*field, WindowText("Help"), text, command);
}

NativePanel::NativePanel(QWidget& beside, const QString& name, const QString& text, const QString& command)
    : QFrame(&beside, Qt::Popup)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_WindowPropagation);
    setObjectName("NativePanel");
    setEnabled(true); // also beside a control that is not
    setFrameShape(QFrame::Box);
    setAccessibleName(name);
    setAccessibleDescription(text);

    auto* label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    const QFontMetrics metrics(label->font());
    const QRect widest(0, 0, kWidthInLetters * metrics.averageCharWidth(), QWIDGETSIZE_MAX);
    label->setMinimumSize(metrics.boundingRect(widest, Qt::TextWordWrap, text).size() + QSize(2, 0));

    auto* layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(label);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    if (!command.isEmpty()) buttons->addWidget(MakeCopyButton("CopyCommand", "CopyCommandHelp", command));
    QPushButton* copy = MakeCopyButton("Copy", "CopyHelp", text);
    buttons->addWidget(copy);
    layout->addLayout(buttons);
    copy->setFocus();
}

QPushButton* NativePanel::MakeCopyButton(const char* title, const char* help, const QString& words)
{
    auto* button = new QPushButton(WindowText(title), this);
    button->setToolTip(WindowText(help));
    button->setAccessibleDescription(WindowText(help));
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this, [this, words] {
        QGuiApplication::clipboard()->setText(words);
        close();
    });
    return button;
}

void NativePanel::PutBeside(const QWidget& widget)
{
    adjustSize();
    const QRect free = widget.screen()->availableGeometry();
    const QRect field(widget.mapToGlobal(QPoint()), widget.size());
    QPoint corner(isRightToLeft() ? field.right() - width() : field.left(), field.bottom());
    if (corner.y() + height() > free.bottom()) corner.setY(field.top() - height());
    corner.setX(std::max(free.left(), std::min(corner.x(), free.right() - width())));
    corner.setY(std::max(free.top(), corner.y()));
    move(corner);
}
