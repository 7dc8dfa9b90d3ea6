#include "Settings/KivSettingRepository.h"

#include "Base/KivDiagnostic.h"
#include "Base/KivGuarded.h"
#include "Settings/KivSettingLayerCopy.h"
#include "Settings/KivSettingLayers.h"
#include "Settings/KivSettingListeners.h"
#include "Settings/KivSettingRegistry.h"
#include "Settings/KivSettingStore.h"
#include "Settings/KivSettingTable.h"

#include <cstdio>

namespace {

bool IsName(std::string_view name)
{
    constexpr std::string_view allowed = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_-";
    return !name.empty() && name.size() <= 100 && name.find_first_not_of(allowed) == std::string_view::npos;
}

} // namespace

KivSettingRepository::KivSettingRepository(std::string_view name, const KivUnicodeString& editedLayer)
    : _name(name), _editedLayer(editedLayer)
{}

// All that a repository forgets with its files.
struct KivSettingRepository::Opened {
    KivSettingStore store;
    KivSettingListeners listeners{};
    KivSettingEnumeration enumeration{};
    Receipt receipt = Receipt::Nothing;
};

inline KivSettingRepository::Opened& KivSettingRepository::Open() const
{
    if (!_opened) [[unlikely]]
        _opened.reset(new Opened{.store = {_name.View(), _editedLayer}});
    return *_opened;
}

inline KivSettingStore& KivSettingRepository::Store() const
{
    return Open().store;
}

KivSettingRepository::~KivSettingRepository() = default;

KivSettingRepository* KivSettingRepository::GetRepository(const char* name, int, int, const char*)
{
    KivSettingRegistry& registry = KivSettingRegistry::Instance();
    if (!name || registry.isWithheld || !IsName(name)) return nullptr;
    KivSettingRepository* repository = nullptr;
    const auto open = [&] {
        std::unique_ptr<KivSettingRepository>& entry =
            registry.repositories[{KivString(name), registry.editedLayer}];
        if (!entry) entry.reset(new KivSettingRepository(name, registry.editedLayer));
        repository = entry.get();
        repository->Open();
        return S_OK;
    };
    KivGuarded(open, E_FAIL); // one that could not be opened is opened when it is used
    return repository;
}

void KivSettingRepository::SetEditedLayer(const KivUnicodeString& directory)
{
    KivSettingRegistry::Instance().editedLayer =
        directory.IsEmpty() ? directory : KivSettingLayers::Absolute(directory.View());
}

const KivUnicodeString& KivSettingRepository::EditedLayer()
{
    return KivSettingRegistry::Instance().editedLayer;
}

void KivSettingRepository::ForgetAll()
{
    KivSettingLayerCopy::ForgetAll();
    for (const auto& [key, repository] : KivSettingRegistry::Instance().repositories) {
        if (!repository) continue;
        repository->_shown = {};
        repository->_opened.reset();
    }
}

void KivSettingRepository::Withhold(bool withheld)
{
    KivSettingRegistry::Instance().isWithheld = withheld;
}

template <class T> HRESULT KivSettingRepository::Take(const KivSettingAttribute& attribute, T& value) const
{
    const T* const shown = std::get_if<T>(&attribute.Shown());
    if (!shown) {
        Store().ReportOtherType(attribute, KivSettingTypeName(T()));
        return E_FAIL;
    }
    value = *shown;
    return S_OK;
}

template <>
HRESULT KivSettingRepository::Take(const KivSettingAttribute& attribute, KivSettingValue& value) const
{
    const KivSettingValue& shown = attribute.Shown();
    if (!KivHasValue(shown) || (KivHasValue(value) && value.index() != shown.index())) {
        Store().ReportOtherType(attribute, KivSettingTypeName(value));
        return E_FAIL;
    }
    value = shown;
    return S_OK;
}

template <class T> HRESULT KivSettingRepository::Read(const char* key, T* value, long count) const
{
    const auto read = [&] {
        const KivSettingAttribute* attribute = Store().Find(key);
        return attribute && value && count == 1 ? Take(*attribute, *value) : E_FAIL;
    };
    return KivGuarded(read, E_FAIL);
}

template <class T> HRESULT KivSettingRepository::ReadUnusual(std::size_t index, T* value) const
{
    const auto read = [&] {
        if (_shown.empty()) _shown = Store().Bind(_boundKeys);
        const KivSettingAttribute* attribute = Store().FindBound(index);
        return attribute && value ? Take(*attribute, *value) : E_FAIL;
    };
    return KivGuarded(read, E_FAIL);
}
template HRESULT KivSettingRepository::ReadUnusual(std::size_t, int*) const;
template HRESULT KivSettingRepository::ReadUnusual(std::size_t, unsigned int*) const;
template HRESULT KivSettingRepository::ReadUnusual(std::size_t, float*) const;
template HRESULT KivSettingRepository::ReadUnusual(std::size_t, double*) const;
template HRESULT KivSettingRepository::ReadUnusual(std::size_t, KivUnicodeString*) const;

template <class T>
HRESULT KivSettingRepository::Write(const char* key, const T* value, long count, int reserved)
{
    if (!key || !value || count != 1 || reserved != 0) return E_FAIL;
    return KivGuarded([&] { return Store().Write(key, *value, _isInitial) ? S_OK : E_FAIL; }, E_FAIL);
}

template HRESULT KivSettingRepository::Read(const char*, int*, long) const;
template HRESULT KivSettingRepository::Read(const char*, unsigned int*, long) const;
template HRESULT KivSettingRepository::Read(const char*, float*, long) const;
template HRESULT KivSettingRepository::Read(const char*, double*, long) const;
template HRESULT KivSettingRepository::Read(const char*, KivUnicodeString*, long) const;
template HRESULT KivSettingRepository::Read(const char*, KivSettingValue*, long) const;
template HRESULT KivSettingRepository::Write(const char*, const int*, long, int);
template HRESULT KivSettingRepository::Write(const char*, const unsigned int*, long, int);
template HRESULT KivSettingRepository::Write(const char*, const float*, long, int);
template HRESULT KivSettingRepository::Write(const char*, const double*, long, int);
template HRESULT KivSettingRepository::Write(const char*, const KivUnicodeString*, long, int);

void KivSettingRepository::BindKeys(std::span<const char* const> keys)
{
    if (keys.data() == _boundKeys.data() && keys.size() == _boundKeys.size()) return;
    _boundKeys = keys;
    _shown = {}; // until the first read: who opens a repository to ask for one key does not pay for all
}

HRESULT KivSettingRepository::WriteSetting(const char* key, const KivSettingValue* value, long count,
                                           int reserved)
{
    return value && KivHasValue(*value) ? Write(key, value, count, reserved) : E_FAIL;
}

HRESULT KivSettingRepository::GetInfo(const char* key, KivSettingInfo* info, int) const
{
    if (!info) return E_FAIL;
    *info = {};
    const auto fill = [&] {
        info->repository = _name;
        info->key = key;
        info->canLock = IsAdministrator();
        const KivSettingAttribute* attribute = Store().FindOrLocked(key);
        if (!attribute) return E_FAIL;
        Store().Sources().Describe(*attribute, *info);
        const bool isKnown = info->origin != KivSettingInfo::Origin::None || info->locked || info->lockedHere;
        return isKnown ? S_OK : E_FAIL;
    };
    return KivGuarded(fill, E_FAIL);
}

HRESULT KivSettingRepository::GetProvenance(const char* key, KivSettingProvenance& provenance) const
{
    provenance = {};
    const auto fill = [&] {
        const KivSettingAttribute* attribute = Store().FindOrLocked(key);
        if (!attribute) return E_FAIL;
        Store().Sources().Fill(provenance, *attribute);
        const bool hasValue = provenance.origin != KivSettingInfo::Origin::None;
        return hasValue || provenance.lockLayer ? S_OK : E_FAIL;
    };
    return KivGuarded(fill, E_FAIL);
}

HRESULT KivSettingRepository::NextAttribute(char* name, char* type, long* count, int restart)
{
    constexpr std::size_t bufferSize = 256;
    std::optional<KivSettingEnumeration::Item> next;
    const auto find = [&] {
        KivSettingEnumeration& enumeration = Open().enumeration;
        if (restart) enumeration = {};
        next = enumeration.Next(Store().Table(), Store().IsProtected());
        return true;
    };
    // What could not be opened must not pass for empty either.
    if (!KivGuarded(find, false) && restart) next = {"", ""};
    if (!next) return E_FAIL;
    if (name) std::snprintf(name, bufferSize, "%.*s", static_cast<int>(next->name.size()), next->name.data());
    if (type) std::snprintf(type, bufferSize, "%s", next->type);
    if (count) *count = 1;
    return S_OK;
}

// Changes the store, and tells the listeners which keys that changed. What they do is not part of it.
template <class Work> HRESULT KivSettingRepository::ChangeAndTell(const Work& change, bool tells)
{
    Keys changed;
    const auto work = [&] {
        changed = change(Store());
        return S_OK;
    };
    const HRESULT result = KivGuarded(work, E_FAIL);
    const auto tell = [&] {
        Open().listeners.Tell(changed);
        return S_OK;
    };
    if (tells) KivGuarded(tell, E_FAIL);
    return result;
}

HRESULT KivSettingRepository::Commit(int notify)
{
    return ChangeAndTell([](KivSettingStore& store) { return store.Commit(); }, notify != 0);
}

HRESULT KivSettingRepository::Rollback()
{
    return Rollback({});
}

HRESULT KivSettingRepository::Rollback(std::span<const char* const> only)
{
    return ChangeAndTell([&](KivSettingStore& store) { return store.Rollback(only); });
}

HRESULT KivSettingRepository::SaveRepository(const char* path)
{
    if (!path) return Save({});
    const auto refuse = [&] {
        Open().receipt = Receipt::Refused;
        KivReport(
            {KivDiagnostic::Severity::Error, "a repository is saved to its own file alone", path, 0, {}});
        return E_FAIL;
    };
    return KivGuarded(refuse, E_FAIL);
}

HRESULT KivSettingRepository::Save(std::span<const char* const> only)
{
    Receipt receipt = Receipt::Refused;
    ChangeAndTell([&](KivSettingStore& store) { return store.Save(receipt, only); });
    if (_opened) _opened->receipt = receipt;
    return receipt == Receipt::Refused ? E_FAIL : S_OK;
}

std::vector<std::shared_ptr<KivFileLock>> KivSettingRepository::AskTurns()
{
    std::vector<std::shared_ptr<KivFileLock>> locks;
    const auto ask = [&] {
        for (const auto& [key, repository] : KivSettingRegistry::Instance().repositories) {
            if (!repository || !repository->_opened) continue;
            if (auto lock = repository->_opened->store.AskTurn()) locks.push_back(std::move(lock));
        }
        return true;
    };
    KivGuarded(ask, false); // the save tells why
    return locks;
}

HRESULT KivSettingRepository::SaveKeys(const char* const* keys, int count)
{
    if (!keys || count <= 0) return count == 0 ? S_OK : E_FAIL;
    return Save({keys, static_cast<std::size_t>(count)});
}

HRESULT KivSettingRepository::RollbackKeys(const char* const* keys, int count)
{
    if (!keys || count <= 0) return count == 0 ? S_OK : E_FAIL;
    return Rollback({keys, static_cast<std::size_t>(count)});
}

KivSettingRepository::Receipt KivSettingRepository::LastReceipt() const
{
    return KivGuarded([&] { return Open().receipt; }, Receipt::Refused);
}

HRESULT KivSettingRepository::ResetToAdminValues(const char* const* keys, int count)
{
    if (count < 0 || (count > 0 && !keys)) return E_FAIL;
    const auto drop = [&] {
        Store().DropOwn({keys, static_cast<std::size_t>(count)});
        return S_OK;
    };
    return KivGuarded(drop, E_FAIL);
}

KivSettingRepository::ListenerId KivSettingRepository::AddListener(Listener listener)
{
    return KivGuarded([&] { return Open().listeners.Add(std::move(listener)); }, ListenerId(0));
}

void KivSettingRepository::RemoveListener(ListenerId listener)
{
    if (_opened) _opened->listeners.Remove(listener);
}

bool KivSettingRepository::IsProtected() const
{
    return KivGuarded([&] { return Store().IsProtected(); }, true);
}

bool KivSettingRepository::IsDamaged() const
{
    return KivGuarded([&] { return Store().IsDamaged(); }, false);
}

std::vector<KivSettingRepository*> KivSettingRepository::Damaged()
{
    std::vector<KivSettingRepository*> damaged;
    const KivSettingRegistry& registry = KivSettingRegistry::Instance();
    for (const auto& [name, repository] : registry.repositories) {
        if (repository && repository->_editedLayer == registry.editedLayer && repository->IsDamaged())
            damaged.push_back(repository.get());
    }
    return damaged;
}

HRESULT KivSettingRepository::Mend()
{
    const Receipt receipt = KivGuarded([&] { return Store().Mend(); }, Receipt::Refused);
    Refresh(); // the lines have other numbers
    return receipt == Receipt::Refused ? E_FAIL : S_OK;
}

KivSettingRepository::Keys KivSettingRepository::Refresh()
{
    Keys answer;
    const auto refresh = [&](KivSettingStore& store) {
        Keys changed = store.Refresh();
        answer = changed;
        return changed;
    };
    ChangeAndTell(refresh);
    return answer;
}

std::vector<KivUnicodeString> KivSettingRepository::Files() const
{
    return KivGuarded([&] { return Store().Sources().Files(); }, std::vector<KivUnicodeString>());
}

HRESULT KivSettingRepository::SetLock(const char* key, bool locked)
{
    return KivGuarded([&] { return key && Store().SetLock(key, locked) ? S_OK : E_FAIL; }, E_FAIL);
}

bool KivSettingRepository::IsAdministrator() const
{
    return !_editedLayer.IsEmpty();
}

KivSettingRepository::InitialScope::InitialScope(KivSettingRepository& repository)
    : _repository(repository), _before(std::exchange(repository._isInitial, true))
{}

KivSettingRepository::InitialScope::~InitialScope()
{
    _repository._isInitial = _before;
}
