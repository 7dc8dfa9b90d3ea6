#include "Sheet/SheetUnit.h"

#include "Common/NativeText.h"
#include "Parameter/KivMeasure.h"
#include "Parameter/KivParmEngine.h"
#include "Parameter/KivParmMagnitude.h"

namespace {

const KivControlUnit& Current(const char* type, KivDlgUnit otherwise)
{
    const KivParmMagnitude* const magnitude = KivParmEngine::Instance().Magnitude(type);
    const KivParmUnit* const unit = magnitude ? magnitude->CurrentUnit() : nullptr;
    const KivControlUnit* const known =
        unit ? KivControlUnit::Named(unit->Name().View(), magnitude->Kind()) : nullptr;
    return known ? *known : KivControlUnit::Of(otherwise);
}

} // namespace

const KivControlUnit& SheetUnit::Length()
{
    return Current(KivParmDictionary::LengthType, KivDlgUnitMillimeter);
}

QString SheetUnit::Print(double millimeters, int decimals)
{
    return ToQt(KivMeasure::Print(millimeters / 1000.0, Length().number, decimals));
}

QString SheetUnit::PrintAngle(double degrees)
{
    const KivControlUnit& shown = Current(KivParmDictionary::AngleType, KivDlgUnitDegree);
    const double radians = KivControlUnit::Of(KivDlgUnitDegree).ToStored(degrees);
    return ToQt(KivMeasure::Print(radians, shown.number, shown.number == KivDlgUnitRadian ? 4 : 1));
}
