// A user's first program, built against the installed library.
#include <cstdio>

#include <ormo_csm.h>

using namespace ORMO::SensorModel::CSM;

int main(int aCount, char** aArguments)
{
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(aCount > 1 ? aArguments[1] : "", &isd, true, false);
    } catch (const CSMException& exception) {
        std::puts(exception.GetAdditionalMessage());
        return 1;
    } catch (const std::exception& exception) {
        std::puts(exception.what());
        return 1;
    }
    auto* const nitf = dynamic_cast<ImageSupportDataNITF*>(isd);
    std::printf("%s, %ld image(s), title: %s\n", isd->GetFileTypeAndVersion(), isd->GetNumOfImageSegments(),
                nitf == nullptr ? "" : nitf->GetNITFFileTitle());
    ImageSupportDataFactory::Destroy(&isd);
    return 0;
}
