#pragma once

#include <QLabel>

// Says at the head of the window whose layer is edited: an administrator's changes are no settings of his
// own.
class OptionsLayerStrip : public QLabel {
    Q_OBJECT

public:
    // The directory of the layer.
    OptionsLayerStrip(const QString& layer, QWidget* parent);
};
