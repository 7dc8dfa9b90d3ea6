#include "KivDrwWorkbench.h"

#include "Command/KivCommandHeader.h"
#include "KivDrwDefaults.h"
#include "KivDrwSettingAccess.h"
#include "KivIDrwDraftingSettingAtt.h"

namespace {

bool HasAttribute(KivSettingRepository& repository)
{
    char name[256] = {}, type[256] = {};
    long count = 0;
    return repository.NextAttribute(name, type, &count, 1) == 0;
}

// It may have been read long ago: what looks empty is looked at once more.
bool IsEmpty(KivSettingRepository& repository)
{
    if (HasAttribute(repository)) return false;
    repository.Refresh();
    return !HasAttribute(repository);
}

using Reader = HRESULT (KivIDrwDraftingSettingAtt::*)(unsigned char&);

// Which attribute, when set, makes which command unavailable.
constexpr struct {
    Reader attribute;
    const char* command;
} kCommands[] = {
    {&KivIDrwDraftingSettingAtt::GetLockUserDefault, "DrwStyle"},
    {&KivIDrwDraftingSettingAtt::GetPreventSetAsDefault, "DrwSetAsDefault"},
    {&KivIDrwDraftingSettingAtt::GetPreventSetAsDefault, "DrwResetDefaults"},
    {&KivIDrwDraftingSettingAtt::GetPreventBackgroundAccess, "KivDrwEditFrame"},
};

void Switch(bool prevented, const char* command)
{
    KivCommandHeader* header = KivCommandHeader::GetHeaderFromList(command, 0);
    if (!header) return;
    if (prevented && header->IsAvailable()) header->BecomeUnavailable();
    if (!prevented && !header->IsAvailable()) header->BecomeAvailable();
}

} // namespace

KivDrwDraftingSettings* KivDrwDraftingSettings::GetDraftingSettings()
{
    static KivDrwDraftingSettings* settings = nullptr;
    if (!settings) settings = new KivDrwDraftingSettings;
    return settings;
}

KivDrwDraftingSettings::KivDrwDraftingSettings() : KivDraftingSettingsAdapt(KivDrwRepository()) {}

KivDrwSketcherSettings* KivDrwSketcherSettings::GetSketcherSettings()
{
    static KivDrwSketcherSettings* settings = nullptr;
    if (!settings) settings = new KivDrwSketcherSettings;
    return settings;
}

KivDrwSketcherSettings::KivDrwSketcherSettings() : Kiv2DBaseSketcherSettingsAdapt(KivDrwRepository()) {}

void KivDrwOptionsServices::InitOptionsOnDisk()
{
    KivSettingRepository* repository = KivDrwRepository();
    if (IsEmpty(*repository)) {
        {
            // A site's default that is deployed later still has to win over what nobody chose.
            const KivSettingRepository::InitialScope initial(*repository);
            ResetAndWriteSettings(1);
        }
        repository->Commit(1);
        repository->SaveRepository(nullptr);
    }
    KivSketcherSettings::SetSketcherSettings(nullptr);
    KivSketcherSettings::SetSketcherSettings(KivDrwSketcherSettings::GetSketcherSettings());
}

void KivDrwCommandAvailability::Apply(KivIDrwDraftingSettingAtt& attributes)
{
    for (const auto& [attribute, command] : kCommands) {
        unsigned char prevented = 0;
        (attributes.*attribute)(prevented);
        Switch(prevented != 0, command);
    }
}
