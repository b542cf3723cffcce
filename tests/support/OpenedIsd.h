#pragma once

#include "foundation/CSMException.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"

#include <memory>
#include <stdexcept>
#include <string>

namespace ORMO::SensorModel::CSM::Tests {

struct IsdReleaser
{
    void operator()(ImageSupportData* aIsd) const { ImageSupportDataFactory::Destroy(&aIsd); }
};

/// The ISD of a file, or of a block of bytes, made and released as hosts do it. What cannot be opened raises.
class OpenedIsd
{
public:
    explicit OpenedIsd(ImageSupportData* aIsd) : m_owner(aIsd) {}
    static OpenedIsd OfFile(const std::string& aPath, bool aAllSegments = true)
    {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, aAllSegments, false);
        return OpenedIsd(isd);
    }
    static OpenedIsd OfBytes(const std::string& aBytes, bool aAllSegments = true)
    {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::CreateFromMemory(aBytes.data(), aBytes.size(), true, nullptr, &isd, aAllSegments,
                                                  false);
        return OpenedIsd(isd);
    }
    /// Nothing for a file that is refused.
    static OpenedIsd IfReadable(const std::string& aPath)
    {
        try {
            return OfFile(aPath);
        } catch (const CSMException&) {
            return OpenedIsd(nullptr);
        } catch (const std::invalid_argument&) {
            return OpenedIsd(nullptr);
        }
    }
    explicit operator bool() const { return m_owner != nullptr; }
    OpenedIsd Clone() const
    {
        ImageSupportData* copy = nullptr;
        ImageSupportDataFactory::Clone(m_owner.get(), &copy);
        return OpenedIsd(copy);
    }

    ImageSupportDataNITF& operator*() const { return dynamic_cast<ImageSupportDataNITF&>(*m_owner); }
    ImageSupportDataNITF* operator->() const { return &**this; }
    const ImageSupportData* Get() const { return m_owner.get(); }
    void Release() { m_owner.reset(); }

private:
    std::unique_ptr<ImageSupportData, IsdReleaser> m_owner;
};

}  // namespace ORMO::SensorModel::CSM::Tests
