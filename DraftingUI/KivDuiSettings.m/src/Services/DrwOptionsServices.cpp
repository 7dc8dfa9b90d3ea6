#include "DrwOptionsServices.h"

#include "Lock/KivDrwLockControl.h"
#include "Parameter/KivControlUnit.h"
#include "Parameter/KivParmDictionary.h"
#include "Parameter/KivParmEngine.h"

namespace {

void SetUnit(KivDlgControl* control, int precision, const char* type, KivDlgMagnitude magnitude,
             KivDlgUnit fallback)
{
    if (!control) return;
    const KivParmMagnitude* found = KivParmEngine::Instance().Magnitude(type);
    const KivParmUnit* current = found ? found->CurrentUnit() : nullptr;
    if (!current) {
        control->SetUnit(fallback);
    } else if (const KivControlUnit* unit = KivControlUnit::Named(current->Name().View(), magnitude)) {
        control->SetUnit(unit->number);
    }
    control->SetPrecision(precision, 0);
}

KivDlgControl* Inner(KivDrwLockControl* wrapper)
{
    KivDialog* inner = wrapper ? wrapper->GetDialog() : nullptr;
    return inner && inner->IsAKindOf(KivDlgControl::ClassName()) ? static_cast<KivDlgControl*>(inner)
                                                                 : nullptr;
}

} // namespace

void DrwOptionsServices::SetControlUnitToPqeLength(KivDlgControl* control, int precision)
{
    SetUnit(control, precision, KivParmDictionary::LengthType, KivDlgMagnitudeLength, KivDlgUnitMillimeter);
}
void DrwOptionsServices::SetControlUnitToPqeLength(KivDrwLockControl* control, int precision)
{
    SetControlUnitToPqeLength(Inner(control), precision);
}
void DrwOptionsServices::SetControlUnitToPqeAngle(KivDlgControl* control, int precision)
{
    SetUnit(control, precision, KivParmDictionary::AngleType, KivDlgMagnitudeAngle, KivDlgUnitDegree);
}
void DrwOptionsServices::SetControlUnitToPqeAngle(KivDrwLockControl* control, int precision)
{
    SetControlUnitToPqeAngle(Inner(control), precision);
}
