#include "Options/OptionsPageView.h"

#include "Native/NativeBuilder.h"
#include "Native/NativeDirectoryRow.h"
#include "Native/NativePiece.h"

OptionsPageView::OptionsPageView(KivEditorPage* page, QWidget* parent) : NativeScrollArea(parent), _page(page)
{}

void OptionsPageView::Build()
{
    if (_built || !_page) return;
    _built = true;
    setWidget(NativeBuilder::Build(*_page, this));
}

QList<QWidget*> OptionsPageView::Fields() const
{
    QList<QWidget*> fields;
    if (!widget()) return fields;
    // The builder makes them in reading order. A padlock takes part also while it is open: it may close.
    const QList<QWidget*> widgets = widget()->findChildren<QWidget*>();
    for (QWidget* candidate : widgets) {
        const bool isField =
            dynamic_cast<NativePiece*>(candidate) || qobject_cast<NativeDirectoryButton*>(candidate);
        if (isField && (candidate->focusPolicy() & Qt::TabFocus || candidate->inherits("QAbstractButton")))
            fields << candidate;
    }
    return fields;
}
