#pragma once

#include "Dialog/KivDialog.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class KivEditorPage;

// Builds the native widgets of a tree, in reading order. From then on each shows its node.
class NativeBuilder {
public:
    // The page's surface will be a child of the parent.
    NativeBuilder(KivEditorPage& page, QWidget* parent);
    ~NativeBuilder();
    NativeBuilder(const NativeBuilder&) = delete;
    NativeBuilder& operator=(const NativeBuilder&) = delete;

    // Builds the next group, so that a page need not come in one piece; false when nothing is left. The page
    // may go meanwhile.
    bool Step();
    QWidget* Surface() const { return _surface; }

    // All at once, on a surface that shows the frame already and has no layout yet.
    static void Fill(KivDialog& frame, QWidget& surface);

private:
    QPointer<QWidget> _surface;
    std::vector<KivWeakPtr<KivDialog>> _groups; // still to fill; the last comes first
};
