#pragma once

#include "Form/KivDrwPageAccessors.h"
#include "KivDrwWorkbench.h"

// Settings by which the sketcher draws and picks: whoever listens to it is told of each change, as its own
// setters do. They are stored in the page's repository, not by those setters, which write to the one that the
// sketcher was made with. Without a repository nothing is stored, and nobody told.
using KivDrwNotifySketcher = void (Kiv2DBaseSketcherSettingsAdapt::*)();

template <class Store>
void KivDrwStoreAndNotify(bool canStore, KivDrwNotifySketcher notify, const Store& store)
{
    if (!canStore) return;
    store();
    (KivDrwSketcherSettings::GetSketcherSettings()->*notify)();
}

// The accessor triple of a drafting frame, bound to a key; the sketcher notifies its listeners by this
// operation.
#define KIV_BIND_NOTIFYING(Notify, key, SetAccessor, GetAccessor, GetInfoAccessor)                           \
    int SetAccessor(const KivArgumentOf<&Base::SetAccessor>& value) override                                 \
    {                                                                                                        \
        KivDrwStoreAndNotify(_repository, &Kiv2DBaseSketcherSettingsAdapt::Notify,                           \
                             [&] { KivDrwChoose(_repository, key, value); });                                \
        return S_OK;                                                                                         \
    }                                                                                                        \
    KIV_BIND_READING(key, SetAccessor, GetAccessor, GetInfoAccessor)

// A color of which the sketcher is told, for KIV_BIND_COLOR.
template <class Color> struct KivDrwNotifyingColor {
    Color color;
    KivDrwNotifySketcher notify;

    void Read(const KivSettingRepository* repository, int& r, int& g, int& b) const
    {
        color.Read(repository, r, g, b);
    }
    void Write(KivSettingRepository* repository, int r, int g, int b) const
    {
        KivDrwStoreAndNotify(repository && KivDrwIsColor(r, g, b), notify,
                             [&] { color.Write(repository, r, g, b); });
    }
    void GetInfo(const KivSettingRepository* repository, KivSettingInfo& info) const
    {
        color.GetInfo(repository, info);
    }
};

// How geometry is drawn.
constexpr KivDrwNotifyingColor<KivDrwPackedColor> KivDrwGeometryColor(const KivDrwKey<unsigned int>& key)
{
    return {{key}, &Kiv2DBaseSketcherSettingsAdapt::GeomUIModify};
}
