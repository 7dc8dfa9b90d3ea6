#include "Settings.h"

#include "Console.h"

// The name is a plain one, for which there is always a repository.
Settings::Settings() : _repository(*KivSettingRepository::GetRepository(Name)) {}

Setting Settings::Describe(const std::string& key) const
{
    Setting setting;
    setting.key = key;
    setting.entry = KivDrwCatalogue::Find(key);
    if (setting.entry) setting.value = setting.fallback = setting.entry->makeDefault();
    _repository.ReadSetting(key.c_str(), &setting.value, 1);
    _repository.GetInfo(key.c_str(), &setting.info, 0);
    if (setting.entry) setting.info.ReadAs(KivSettingTypeName(setting.fallback));
    return setting;
}

std::vector<std::string> Settings::UnknownKeys() const
{
    std::vector<std::string> keys;
    char name[256], type[256];
    long count = 0;
    for (int restart = 1; _repository.NextAttribute(name, type, &count, restart) == S_OK; restart = 0) {
        if (name[0] && !KivDrwCatalogue::Find(name)) keys.emplace_back(name);
    }
    return keys;
}

bool Settings::Write(const std::string& key, const KivSettingValue& value)
{
    return _repository.WriteSetting(key.c_str(), &value, 1, 0) == S_OK;
}

void Settings::Drop(const std::vector<std::string>& keys)
{
    std::vector<const char*> names;
    names.reserve(keys.size());
    for (const std::string& key : keys) names.push_back(key.c_str());
    _repository.ResetToAdminValues(names.data(), static_cast<int>(names.size()));
}

ExitCode Settings::SetLocks(const std::vector<std::string>& keys, bool locked, Console& console)
{
    ExitCode code = ExitCode::Done;
    for (const std::string& key : keys) {
        if (_repository.SetLock(key.c_str(), locked) == S_OK) continue;
        const KivSettingInfo info = Describe(key).info;
        KivUnicodeString message = info.Message();
        if (!info.locked)
            message.Append(" That line locks more than this key: unlock it as it stands there.");
        console.Say(key, message.View());
        code = code | ExitCode::Refused;
    }
    return code;
}

ExitCode Settings::Save(Console& console)
{
    _repository.SaveRepository(nullptr);
    return AfterSaving(_repository.LastReceipt(), console) | AfterReading();
}

ExitCode Settings::AfterSaving(KivSettingRepository::Receipt receipt, Console& console)
{
    using Receipt = KivSettingRepository::Receipt;
    if (receipt == Receipt::Nothing || receipt == Receipt::Durable) return ExitCode::Done;
    if (receipt == Receipt::Visible)
        console.Say("the change is in place, but might not survive a power failure");
    return ExitCode::Trouble;
}

ExitCode Settings::AfterReading() const
{
    return _repository.IsProtected() ? ExitCode::Trouble : ExitCode::Done;
}
