#pragma once

#include <QWidget>

class KivDialog;
class NativeEditor;

// A field for a directory and, beside it, the button that chooses one. It goes when the field goes.
class NativeDirectoryRow : public QWidget {
public:
    NativeDirectoryRow(KivDialog& node, QWidget* parent);

    NativeEditor& Field() const { return *_field; }

private:
    NativeEditor* _field; // a child
};
