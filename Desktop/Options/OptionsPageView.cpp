#include "Options/OptionsPageView.h"

#include "Native/NativeBuilder.h"
#include "Native/NativeDirectoryRow.h"
#include "Native/NativePiece.h"

OptionsPageView::OptionsPageView(KivEditorPage* page, QWidget* parent) : NativeScrollArea(parent), _page(page)
{}

OptionsPageView::~OptionsPageView() = default;

void OptionsPageView::Build()
{
    while (BuildPart()) {
    }
}

bool OptionsPageView::BuildPart()
{
    if (!_page) return false;
    if (!_builder) {
        _builder = std::make_unique<NativeBuilder>(*_page, this);
    } else if (!_builder->Step()) {
        setWidget(_builder->Surface());
        _builder.reset();
        _page = nullptr;
    }
    return true;
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
