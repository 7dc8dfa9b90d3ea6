#include "KivDrwButtonGenFil.h"

namespace {

// Created in another order than they are shown and numbered, deliberately. Another value checks none.
const KivFormRadios& Representations()
{
    static const auto& radios = *new KivFormRadios{
        .buttons = {
            {"radioBoundaries", 1, 0}, {"radioSymbo", 2, 1}, {"radioProjEd", 4, 3}, {"radioOrigEd", 3, 2}}};
    return radios;
}

} // namespace

KivDrwButtonGenFil::KivDrwButtonGenFil(KivDialog* parent, const KivString& name)
    : KivClass(parent, name, "KivDrwButtonGen")
{
    Build();
    Open();
}

void KivDrwButtonGenFil::Build()
{
    _form.Group(*this, "frameButtonGenFil", "I_DrwFrontView")
        .Radios("frameRadioGenFil", _representation, Representations());
}
