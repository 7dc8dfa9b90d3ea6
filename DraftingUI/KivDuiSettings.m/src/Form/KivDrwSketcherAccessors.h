#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "KivDrwSketcherSettings.h"

// Settings by which the sketcher draws and picks: whoever listens to it is told of each change, as its own
// setters do. They are stored in the page's repository, not by those setters, which write to the one that the
// sketcher was made with. Without a repository nothing is stored, and nobody told.
using KivDrwTellSketcher = void (Kiv2DBaseSketcherSettingsAdapt::*)();

template <class Store> void KivDrwStoreAndTell(bool canStore, KivDrwTellSketcher tell, const Store& store)
{
    if (!canStore) return;
    store();
    (KivDrwSketcherSettings::GetSketcherSettings()->*tell)();
}

// The accessor triple of a drafting frame, bound to a key of which the sketcher is told by this operation.
#define KIV_BIND_TOLD(Tell, key, SetAccessor, GetAccessor, GetInfoAccessor)                                  \
    int SetAccessor(const KivArgumentOf<&Base::SetAccessor>& value) override                                 \
    {                                                                                                        \
        KivDrwStoreAndTell(_repository, &Kiv2DBaseSketcherSettingsAdapt::Tell,                               \
                           [&] { KivDrwChoose(_repository, key, value); });                                  \
        return S_OK;                                                                                         \
    }                                                                                                        \
    KIV_BIND_READING(key, SetAccessor, GetAccessor, GetInfoAccessor)

// A color of which the sketcher is told, for KIV_BIND_COLOR.
template <class Color> struct KivDrwToldColor {
    Color color;
    KivDrwTellSketcher tell;

    void Read(const KivSettingRepository* repository, int& r, int& g, int& b) const
    {
        color.Read(repository, r, g, b);
    }
    void Write(KivSettingRepository* repository, int r, int g, int b) const
    {
        KivDrwStoreAndTell(repository && KivDrwIsColor(r, g, b), tell,
                           [&] { color.Write(repository, r, g, b); });
    }
    void GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const
    {
        color.GetInfo(repository, info);
    }
};

// How geometry is drawn.
constexpr KivDrwToldColor<KivDrwPackedColor> KivDrwGeometryColor(const KivDrwKey<unsigned int>& key)
{
    return {{key}, &Kiv2DBaseSketcherSettingsAdapt::GeomUIModify};
}
