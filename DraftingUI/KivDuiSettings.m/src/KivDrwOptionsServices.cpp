#include "KivDrwOptionsServices.h"

#include "KivDrwDefaults.h"
#include "KivDrwRepository.h"
#include "KivDrwSketcherSettings.h"

void KivDrwOptionsServices::InitOptionsOnDisk()
{
    KivSettingRepository* repository = KivDrwRepository();
    char name[256] = {}, type[256] = {};
    long count = 0;
    if (repository->NextAttribute(name, type, &count, 1) != 0) {
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
