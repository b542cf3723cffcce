// Sensor models of registered plug-ins for the images of the file.

#include "fields/MessageText.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/OrmoCSMPlugin.h"
#include "isd/detail/CsmCall.h"
#include "isd/detail/CsmRecords.h"
#include "isd/detail/IsdParts.h"
#include "isd/detail/RegisteredPlugins.h"

#include <algorithm>
#include <exception>
#include <iterator>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM {

namespace {

using Isds = std::vector<std::unique_ptr<tsm_ISD>>;

/// The forms in which an image is offered to plug-ins. They stand for that image alone, as an operation of a plug-in
/// takes no number of an image.
Isds IsdsOfImage(const ImageSupportDataNITF& aIsd, std::size_t aSegment)
{
    Isds candidates;
    candidates.push_back(Detail::NewNitfIsd(aIsd.GetNITFFileVersionCode()));
    if (aIsd.GetNumOfImageSegments() == 1) {
        candidates.push_back(std::make_unique<filenameISD>());
    }
    Isds isds;
    for (std::unique_ptr<tsm_ISD>& candidate : candidates) {
        if (aIsd.SetTSMISD(static_cast<int>(aSegment), candidate.get())) {
            isds.push_back(std::move(candidate));
        }
    }
    return isds;
}

/// The first of the ISDs that the plug-in takes for the model; null when it takes none.
const tsm_ISD* TakenIsd(const TSMPlugin& aPlugin, const std::string& aModel, const Isds& aIsds)
{
    for (const std::unique_ptr<tsm_ISD>& isd : aIsds) {
        bool takes = false;
        if (Detail::AskCsm([&] { return aPlugin.canSensorModelBeConstructedFromISD(*isd, aModel, takes); }) && takes) {
            return isd.get();
        }
    }
    return nullptr;
}

/// Calls `aUse` with every plug-in, model and ISD that fit together, until it answers true.
template<typename Use>
void ForEachModel(const Isds& aIsds, Use aUse)
{
    for (const TSMPlugin* const plugin : Detail::RegisteredPlugins()) {
        if (plugin == &OrmoCSMPlugin::Instance()) {
            continue;
        }
        for (const Detail::OfferedModel& model : Detail::ModelsOf(*plugin)) {
            const tsm_ISD* const isd = TakenIsd(*plugin, model.name, aIsds);
            if (isd != nullptr && aUse(*plugin, model, *isd)) {
                return;
            }
        }
    }
}

std::vector<const char*> TextsOf(const std::vector<std::string>& aTexts)
{
    std::vector<const char*> texts;
    std::transform(aTexts.begin(), aTexts.end(), std::back_inserter(texts),
                   [](const std::string& aText) { return aText.c_str(); });
    return texts;
}

/// The kept texts that say the same, made when there are none.
const Detail::ModelTexts& Kept(Detail::TsmViews& aViews, Detail::ModelTexts aFound)
{
    const std::lock_guard lock(aViews.guard);
    for (const Detail::ModelTexts& texts : aViews.models) {
        if (texts.names == aFound.names && texts.versions == aFound.versions) {
            return texts;
        }
    }
    Detail::ModelTexts& texts = aViews.models.emplace_back(std::move(aFound));
    texts.nameTexts = TextsOf(texts.names);
    texts.versionTexts = TextsOf(texts.versions);
    return texts;
}

}  // namespace

bool ImageSupportDataNITF::GetSensorModelsOfImageSegment(const char**& aNames, const char**& aVersions,
                                                         std::size_t& aCount, std::size_t aSegment) const
{
    aNames = nullptr;
    aVersions = nullptr;
    aCount = 0;
    if (GetImageSubheader(aSegment) == nullptr) {
        return false;
    }
    try {
        Detail::ModelTexts found;
        ForEachModel(IsdsOfImage(*this, aSegment),
                     [&](const TSMPlugin&, const Detail::OfferedModel& aModel, const tsm_ISD&) {
                         if (std::find(found.names.begin(), found.names.end(), aModel.name) == found.names.end()) {
                             found.names.push_back(aModel.name);
                             found.versions.push_back(aModel.version);
                         }
                         return false;
                     });
        if (!found.names.empty()) {
            const Detail::ModelTexts& texts = Kept(m_parts->tsm, std::move(found));
            aNames = const_cast<const char**>(texts.nameTexts.data());
            aVersions = const_cast<const char**>(texts.versionTexts.data());
            aCount = texts.nameTexts.size();
        }
        return true;
    } catch (const std::exception&) {
        // Memory is short.
        return false;
    }
}

TSMSensorModel* ImageSupportDataNITF::GetTSMSensorModel(const char* aSensorModelName, std::size_t aSegment) const
{
    if (GetImageSubheader(aSegment) == nullptr) {
        return nullptr;
    }
    const std::string name = aSensorModelName == nullptr ? "" : aSensorModelName;
    TSMSensorModel* built = nullptr;
    try {
        ForEachModel(IsdsOfImage(*this, aSegment), [&](const TSMPlugin& aPlugin, const Detail::OfferedModel& aModel,
                                                       const tsm_ISD& aIsd) {
            if (aModel.name != name) {
                return false;
            }
            if (!Detail::AskCsm([&] { return aPlugin.constructSensorModelFromISD(aIsd, aModel.name, built); })) {
                built = nullptr;
            }
            return built != nullptr;
        });
    } catch (const std::exception&) {
        // Memory is short.
        return nullptr;
    }
    ClearMessages();
    if (built == nullptr) {
        RefuseQuery("ERROR: No registered plug-in builds the sensor model " + Detail::Quoted(name) + " of " +
                    Detail::SegmentName(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aSegment) + '.');
    }
    return built;
}

}  // namespace ORMO::SensorModel::CSM
