#pragma once

#include "DesDESDATA.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class DesDESSHFCSSHPA;

/// The data of a "CSSHPA DES": the SHP, SHX and DBF files of one shapefile, one after the other (STDI-0002 Vol 2 App
/// D). Only the subheader fields tell where each begins.
class ORMO_CSM_API DesDESDATACSSHPA : public DesDESDATA
{
public:
    /// Raises as DesDESDATA::InitDesDESDATA says.
    DesDESDATACSSHPA(const char* aType, const char* aData, std::size_t aLength);
    std::unique_ptr<DesDESDATA> Clone() const override { return std::make_unique<DesDESDATACSSHPA>(*this); }
    std::string CheckAgainst(const DesDESSHF& aSubheader) const override;

    /// One file of the shapefile. The bytes belong to the data.
    struct ShapeFile
    {
        std::string name;  ///< "SHP", "SHX" or "DBF": the extension that a reader looks for
        const char* data = nullptr;
        std::size_t length = 0;
    };

    /// The files, in the order of the subheader fields. False, with none and the reason appended to `aErrors` when that
    /// is given, when a start is no number, lies beyond the data or is that of another file.
    bool GetShapeFiles(const DesDESSHFCSSHPA& aSubheader, std::vector<ShapeFile>& aFiles,
                       std::string* aErrors = nullptr) const;

protected:
    const Layout& InitDESDATAFieldsMap() const override;
};

}  // namespace ORMO::SensorModel::CSM
