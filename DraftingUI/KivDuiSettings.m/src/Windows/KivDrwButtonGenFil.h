#pragma once

#include "Windows/KivDrwButtonDialog.h"

// Chooses how generated fillets are represented in views.
class KivDrwButtonGenFil final : public KivClass<KivDrwButtonGenFil, KivDrwButtonDialog> {
public:
    static constexpr const char* Name = "KivDrwButtonGenFil";
    KivDrwButtonGenFil(KivDialog* parent, const KivString& name);

    void Build();

private:
    KIV_KEY_PROPERTY(_representation, int, KivDrwKeys::DrwGenFilConfigure)
};
