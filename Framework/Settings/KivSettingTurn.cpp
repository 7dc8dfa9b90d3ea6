#include "Settings/KivSettingTurn.h"

#include "Settings/KivSettingOwnFile.h"
#include "Settings/KivSettingRepository.h"

#include <algorithm>

KivSettingTurn::KivSettingTurn() : _locks(KivSettingRepository::AskTurns()) {}

KivSettingTurn::~KivSettingTurn() = default;

bool KivSettingTurn::HasCome(std::chrono::milliseconds patience) const
{
    const bool isTooLate = std::chrono::steady_clock::now() >= _asked + KivSettingOwnFile::LockPatience;
    return isTooLate || std::all_of(_locks.begin(), _locks.end(),
                                    [patience](const auto& lock) { return lock->Await(patience); });
}
