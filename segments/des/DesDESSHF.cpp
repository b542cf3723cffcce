#include "segments/des/DesDESSHF.h"

#include "foundation/CSMExceptions.h"
#include "segments/des/detail/DesLayout.h"

#include <string_view>
#include <typeinfo>

namespace ORMO::SensorModel::CSM {

DesDESSHF::DesDESSHF() : m_name("UNKNOWN") {}
DesDESSHF::DesDESSHF(const DesDESSHF& aOther) = default;
DesDESSHF::~DesDESSHF() = default;

DesDESSHF& DesDESSHF::operator=(const DesDESSHF& aOther)
{
    Assign(aOther);
    return *this;
}

void DesDESSHF::Assign(const DesDESSHF& aOther)
{
    if (typeid(*this) != typeid(aOther)) {
        throw RequestedOperationFailedException(
            "ERROR: System failed to assign all the member variables of one DesDESSHF to another.",
            "DesDESSHF::Assign");
    }
    DesFieldSet::operator=(aOther);
    m_name = aOther.m_name;
}

bool DesDESSHF::operator==(const DesDESSHF& aOther) const
{
    return Equals(aOther);
}

const char* DesDESSHF::GetDESSHFName() const noexcept
{
    return m_name;
}

const char* DesDESSHF::GetDataDESSHF(std::size_t& aLength) const noexcept
{
    aLength = Data().size();
    return Data().c_str();
}

void DesDESSHF::InitDesDESSHF(const char* aType, const char* aData, std::size_t aLength)
{
    constexpr const char* SOURCE = "DesDESSHF::InitDesDESSHF";
    TakeData(aType, aData, aLength, "ERROR: NULL or empty input DES DESSHF data/DESID.", SOURCE);
    const Layout& layout = InitDESSHFFieldsMap();
    if (std::string_view(layout.type) != GetUniqueDESTypeID()) {
        throw UnsupportedDESSHFException(SOURCE);
    }
    m_name = layout.name;
    CutFields(layout, "DESSHF");
}

}  // namespace ORMO::SensorModel::CSM
