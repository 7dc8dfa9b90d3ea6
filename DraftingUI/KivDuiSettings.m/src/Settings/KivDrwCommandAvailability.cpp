#include "KivDrwCommandAvailability.h"

#include "Command/KivCommandHeader.h"
#include "KivIDrwDraftingSettingAtt.h"

namespace {

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

void KivDrwCommandAvailability::Apply(KivIDrwDraftingSettingAtt& attributes)
{
    for (const auto& [attribute, command] : kCommands) {
        unsigned char prevented = 0;
        (attributes.*attribute)(prevented);
        Switch(prevented != 0, command);
    }
}
