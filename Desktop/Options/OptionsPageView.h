#pragma once

#include "Dialog/KivDialog.h"
#include "Native/NativeScrollArea.h"
#include "Options/KivEditorPage.h"

// A page of the options window with its scroll bars. Its widgets are built when it is first shown.
class OptionsPageView : public NativeScrollArea {
public:
    OptionsPageView(KivEditorPage* page, QWidget* parent);

    void Build();
    // What Tab reaches on the page, in reading order.
    QList<QWidget*> Fields() const;

private:
    KivWeakPtr<KivEditorPage> _page;
    bool _built = false;
};
