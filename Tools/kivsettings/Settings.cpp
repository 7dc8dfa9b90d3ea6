#include "Settings.h"

#include "Console.h"
#include "ValueText.h"

#include <string_view>
#include <type_traits>

namespace {

template <class T> KivSettingValue ReadAs(const KivSettingRepository& repository, const char* key)
{
    T value{};
    return repository.ReadSetting(key, &value, 1) == S_OK ? KivSettingValue(value) : KivSettingValue();
}

// Delivers name and type of every attribute until told to stop.
template <class Visitor> void ForEachAttribute(KivSettingRepository& repository, const Visitor& visit)
{
    char name[256], type[256];
    long count = 0;
    for (int restart = 1; repository.NextAttribute(name, type, &count, restart) == S_OK; restart = 0) {
        if (name[0] && !visit(name, std::string_view(type))) return;
    }
}

} // namespace

// The name is a plain one, for which there is always a repository.
Settings::Settings() : _repository(*KivSettingRepository::GetRepository(Name)) {}

Setting Settings::Describe(const std::string& key) const
{
    Setting setting;
    setting.key = key;
    setting.row = KivDrwCatalogue::Find(key);
    if (setting.row) {
        KivDrwValue value = setting.row->makeDefault();
        setting.fallback = SettingValueOf(value);
        std::visit([&](auto& plain) { _repository.ReadSetting(key.c_str(), &plain, 1); }, value);
        setting.value = SettingValueOf(value);
    } else {
        setting.value = ValueOfUnknown(key);
    }
    _repository.GetInfo(key.c_str(), &setting.info, 0);
    if (setting.row) setting.info.ReadAs(KivSettingTypeName(setting.fallback));
    return setting;
}

KivSettingValue Settings::ValueOfUnknown(const std::string& key) const
{
    KivSettingValue value;
    ForEachAttribute(_repository, [&](const char* name, std::string_view type) {
        if (key != name) return true;
        if (type == "int") value = ReadAs<int>(_repository, name);
        if (type == "unsigned int") value = ReadAs<unsigned int>(_repository, name);
        if (type == "float") value = ReadAs<float>(_repository, name);
        if (type == "double") value = ReadAs<double>(_repository, name);
        if (type == "string") value = ReadAs<KivUnicodeString>(_repository, name);
        return false;
    });
    return value;
}

std::vector<std::string> Settings::UnknownKeys() const
{
    std::vector<std::string> keys;
    ForEachAttribute(_repository, [&keys](const char* name, std::string_view) {
        if (!KivDrwCatalogue::Find(name)) keys.emplace_back(name);
        return true;
    });
    return keys;
}

bool Settings::Write(const std::string& key, const KivSettingValue& value)
{
    return std::visit(
        [&](const auto& plain) {
            if constexpr (std::is_same_v<std::decay_t<decltype(plain)>, std::monostate>)
                return false;
            else
                return _repository.WriteSetting(key.c_str(), &plain, 1, 0) == S_OK;
        },
        value);
}

void Settings::Drop(const std::vector<std::string>& keys)
{
    std::vector<const char*> names;
    for (const std::string& key : keys) names.push_back(key.c_str());
    _repository.ResetToAdminValues(names.data(), static_cast<int>(names.size()));
}

ExitCode Settings::SetLocks(const std::vector<std::string>& keys, bool locked, Console& console)
{
    ExitCode code = ExitCode::Done;
    for (const std::string& key : keys) {
        if (_repository.SetLock(key.c_str(), locked) == S_OK) continue;
        const KivSettingInfo info = Describe(key).info;
        KivUnicodeString words = info.Words();
        if (!info.locked) words.Append(" That line locks more than this key: unlock it as it stands there.");
        console.Say(key, words.View());
        code = code | ExitCode::Refused;
    }
    return code;
}

ExitCode Settings::Save(Console& console)
{
    _repository.SaveRepository(nullptr);
    return AfterSaving(_repository.LastReceipt(), console);
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
