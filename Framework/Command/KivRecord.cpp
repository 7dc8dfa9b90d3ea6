#include "Command/KivRecord.h"

namespace {

KivRecord* mainRecord = nullptr;

} // namespace

KivRecord* KivRecord::GetMain()
{
    return mainRecord;
}

void KivRecord::SetMain(KivRecord* recorder)
{
    mainRecord = recorder;
}

HRESULT KivRecord::GetSoftwareRecordLevel(const char* name, int* level) const
{
    const auto found = _levels.find(name);
    if (found == _levels.end() || !level) return E_FAIL;
    *level = found->second;
    return S_OK;
}

void KivRecord::SetSoftwareRecordLevel(const char* name, int level)
{
    _levels[name] = level;
}
