#pragma once

#include "../../foundation/Export.h"
#include "DesDESDATA.h"
#include "DesDESSHF.h"

#include <cstddef>
#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM {

// Classes of DES types that differ only in their field table, so one pattern declares them all.
#define ORMO_TYPED_DESSHF(aClass)                                                                     \
    class ORMO_CSM_API aClass : public DesDESSHF                                                      \
    {                                                                                                 \
    public:                                                                                           \
        /** Raises as DesDESSHF::InitDesDESSHF says. */                                               \
        aClass(const char* aType, const char* aData, std::size_t aLength);                            \
        std::unique_ptr<DesDESSHF> Clone() const override { return std::make_unique<aClass>(*this); } \
                                                                                                      \
    protected:                                                                                        \
        const Layout& InitDESSHFFieldsMap() const override;                                           \
    }
#define ORMO_TYPED_DESDATA(aClass)                                                                     \
    class ORMO_CSM_API aClass : public DesDESDATA                                                      \
    {                                                                                                  \
    public:                                                                                            \
        /** Raises as DesDESDATA::InitDesDESDATA says. */                                              \
        aClass(const char* aType, const char* aData, std::size_t aLength);                             \
        std::unique_ptr<DesDESDATA> Clone() const override { return std::make_unique<aClass>(*this); } \
        std::string CheckAgainst(const DesDESSHF&) const override { return {}; }                       \
                                                                                                       \
    protected:                                                                                         \
        const Layout& InitDESDATAFieldsMap() const override;                                           \
    }

/// Attitude of the sensor of linear or frame imagery (STDI-0002 Volume 2 Appendix M).
ORMO_TYPED_DESSHF(DesDESSHFCSATTB);
ORMO_TYPED_DESDATA(DesDESDATACSATTB);
/// Positions of the sensor platform (the same).
ORMO_TYPED_DESSHF(DesDESSHFCSEPHB);
ORMO_TYPED_DESDATA(DesDESDATACSEPHB);
/// Inner geometry of a scanner or frame camera (the same).
ORMO_TYPED_DESSHF(DesDESSHFCSSFAB);
ORMO_TYPED_DESDATA(DesDESDATACSSFAB);
/// Errors of the sensor data as covariances with correlation functions (the same).
ORMO_TYPED_DESSHF(DesDESSHFCSCSDB);
ORMO_TYPED_DESDATA(DesDESDATACSCSDB);
/// A shapefile with its ties to images and segments, version B (Appendix D).
ORMO_TYPED_DESSHF(DesDESSHFCSSHPB);
/// An outside document or file with headers that say what it is (Appendix K).
ORMO_TYPED_DESSHF(DesDESSHFExtDefContent);
/// A piece of a laser point cloud as a LAS file (Appendix J).
ORMO_TYPED_DESSHF(DesDESSHFLIDARA);

#undef ORMO_TYPED_DESSHF
#undef ORMO_TYPED_DESDATA

}  // namespace ORMO::SensorModel::CSM
