#pragma once

#include "Form/KivProperty.h"
#include "Settings/KivDrwPageWrite.h"

// A property of a page without accessors, which reads and writes a key itself. Registers with the page's
// properties when it is constructed, so that declaration order is the order of reading.
template <class T, class Stored = T> class KivDrwKeyProperty final : public KivPropertyOf<T> {
public:
    // The repository may be null and is not owned.
    KivDrwKeyProperty(KivProperties& properties, KivSettingRepository* repository,
                      const KivDrwKey<Stored>& key)
        : _repository(repository), _key(key)
    {
        properties.push_back(this);
    }
    const KivSettingKind& Kind() const { return _key.kind; }
    void LoadDefault() override { LoadFrom(nullptr); }
    void Load() override { LoadFrom(_repository); }
    void Save() override
    {
        if (this->cached == _loaded) {
            KivDrwKeep(_repository, _key, this->cached);
        } else {
            KivDrwChoose(_repository, _key, this->cached);
        }
    }
    HRESULT GetInfo(KivSettingInfo& info) const override { return KivDrwGetInfo(_repository, _key, info); }

private:
    void LoadFrom(const KivSettingRepository* repository)
    {
        KivDrwGet(repository, _key, this->cached);
        _loaded = this->cached;
    }

    KivSettingRepository* _repository;
    const KivDrwKey<Stored>& _key;
    T _loaded{};
};

// A property as a member of a page or a window that has _properties and _repository:
// KIV_KEY_PROPERTY(_genDim, int, KivDrwKeys::GenDim).
#define KIV_KEY_PROPERTY(property, T, key)                                                                   \
    KivDrwKeyProperty<T, KivDrwStored<decltype(key)>> property{_properties, _repository, key};
