#include "segments/des/DesDESDATA.h"

#include "foundation/CSMExceptions.h"
#include "segments/des/detail/DesLayout.h"

#include <string_view>
#include <typeinfo>

namespace ORMO::SensorModel::CSM {

DesDESDATA::DesDESDATA() : m_name("UNKNOWN") {}
DesDESDATA::DesDESDATA(const DesDESDATA& aOther) = default;
DesDESDATA::~DesDESDATA() = default;

DesDESDATA& DesDESDATA::operator=(const DesDESDATA& aOther)
{
    Assign(aOther);
    return *this;
}

void DesDESDATA::Assign(const DesDESDATA& aOther)
{
    if (typeid(*this) != typeid(aOther)) {
        throw RequestedOperationFailedException(
            "ERROR: System failed to assign all the member variables of one DesDESDATA to another.",
            "DesDESDATA::Assign");
    }
    DesFieldSet::operator=(aOther);
    m_name = aOther.m_name;
}

bool DesDESDATA::operator==(const DesDESDATA& aOther) const
{
    return Equals(aOther);
}

const char* DesDESDATA::GetDESDATAName() const noexcept
{
    return m_name;
}

const char* DesDESDATA::GetDataDESDATA(std::size_t& aLength) const noexcept
{
    aLength = Data().size();
    return Data().c_str();
}

void DesDESDATA::InitDesDESDATA(const char* aType, const char* aData, std::size_t aLength)
{
    constexpr const char* SOURCE = "DesDESDATA::InitDesDESDATA";
    TakeData(aType, aData, aLength, "ERROR: NULL or empty input DES DESDATA data.", SOURCE);
    const Layout& layout = InitDESDATAFieldsMap();
    if (std::string_view(layout.type) != GetUniqueDESTypeID()) {
        throw UnsupportedDESDATAException(SOURCE);
    }
    m_name = layout.name;
    CutFields(layout, "DESDATA");
}

}  // namespace ORMO::SensorModel::CSM
