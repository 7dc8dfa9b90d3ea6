#include "Settings/KivSettingTransaction.h"

#include "Settings/KivSettingLine.h"

#include <algorithm>

void KivSettingTransaction::Set(const KivString& key, KivSettingValue value)
{
    std::erase_if(_changes, [&](const auto& change) { return change.first == key; });
    _changes.emplace_back(key, std::move(value));
}

void KivSettingTransaction::Refuse(const KivString& key)
{
    Refusal refusal{key, "the value is not a finite number", {}};
    _repository.GetInfo(key.ConvertToChar(), &refusal.locker, 0);
    if (refusal.locker.locked) {
        refusal.why = refusal.locker.Message();
    } else if (!KivIsSettingKey(key.View())) {
        refusal.why = "a setting's name has letters, digits and underscores, at most 255 of them";
    }
    _refusals.push_back(std::move(refusal));
}

KivSettingRepository::Receipt KivSettingTransaction::Save()
{
    _refusals.clear();
    for (const auto& [key, value] : std::exchange(_changes, {})) {
        const char* const name = key.ConvertToChar();
        KivSettingInfo info;
        _repository.GetInfo(name, &info, 0);
        const HRESULT result = info.locked          ? E_FAIL
                               : KivHasValue(value) ? _repository.WriteSetting(name, &value, 1, 0)
                                                    : _repository.ResetToAdminValues(&name, 1);
        if (result != S_OK) Refuse(key);
    }
    _repository.SaveRepository(nullptr);
    return _repository.LastReceipt();
}
