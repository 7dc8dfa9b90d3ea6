#pragma once

#include "Dialog/KivDialog.h"
#include "Native/NativeScrollArea.h"
#include "Options/KivEditorPage.h"

#include <memory>

class NativeBuilder;

// A page of the options window with its scroll bars. Its widgets are built when it is first shown, or before
// that, part by part.
class OptionsPageView : public NativeScrollArea {
public:
    OptionsPageView(KivEditorPage* page, QWidget* parent);
    ~OptionsPageView() override;

    // Completes it.
    void Build();
    // Builds a part of it, in a few milliseconds; false when it was complete.
    bool BuildPart();
    // What Tab reaches on the page, in reading order.
    QList<QWidget*> Fields() const;

private:
    KivWeakPtr<KivEditorPage> _page; // null once it is complete
    std::unique_ptr<NativeBuilder> _builder;
};
