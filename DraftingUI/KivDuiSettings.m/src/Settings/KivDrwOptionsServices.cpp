#include "KivDrwOptionsServices.h"

#include "KivDrwDefaults.h"
#include "KivDrwRepository.h"
#include "KivDrwSketcherSettings.h"

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

} // namespace

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
