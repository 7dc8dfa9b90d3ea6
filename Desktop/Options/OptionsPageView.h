#pragma once

#include "Dialog/KivDialog.h"
#include "Options/KivEditorPage.h"

#include <QScrollArea>

// A page of the options window with its scroll bars. Its widgets are built when it is first shown.
class OptionsPageView : public QScrollArea {
public:
    OptionsPageView(KivEditorPage* page, QWidget* parent);

    void Build();
    // What Tab reaches on the page, in reading order.
    QList<QWidget*> Fields() const;

private:
    KivWeakPtr<KivEditorPage> _page;
    bool _built = false;
};
