#include "foundation/CSMSysProperties.h"

#include "foundation/CSMCnst.h"
#include "foundation/CSMUtilFile.h"
#include "foundation/CSMUtilString.h"
#include "foundation/CSMUtilWindows.h"

#include <map>
#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM {
namespace {

using Keys = Util::CSMCnst::PropertyKey;
using PropertyMap = std::map<std::string, std::string>;

/// The configuration directory with its separator at the end, or an empty text.
std::string ConfigurationDirectory()
{
    char* text = nullptr;
    Util::CSMUtilWindows::GetPathEnvVariable(Keys::ENV_TALVIK_CLASSIFIED_SYS_CONFIG_DIR, &text);
    const std::unique_ptr<char[]> owner(text);
    return text == nullptr ? std::string() : std::string(text);
}

/// The pairs of the file in its order, freed with this object.
class PairArray
{
public:
    PairArray() = default;
    PairArray(const PairArray&) = delete;
    PairArray& operator=(const PairArray&) = delete;
    ~PairArray() { Util::CSMUtilFile::DeleteKeyValuesPairArray(m_count, &m_pairs); }

    bool Read(const std::string& aPath)
    {
        return Util::CSMUtilFile::GetKeyValuePairsFromFile(aPath.c_str(), m_count, &m_pairs);
    }

    /// The first value of a key stays, here as in the file.
    void InsertInto(PropertyMap& aMap) const
    {
        for (int i = 0; i != m_count; ++i) {
            const Util::KeyValuePair& pair = m_pairs[i];
            if (pair.key != nullptr) {
                aMap.emplace(pair.key, pair.value == nullptr ? "" : pair.value);
            }
        }
    }

private:
    int m_count = 0;
    Util::KeyValuePair* m_pairs = nullptr;
};

void Fill(PropertyMap& aMap)
{
    const std::string directory = ConfigurationDirectory();
    PairArray pairs;
    if (directory.empty() || !pairs.Read(directory + Keys::TALVIK_CLASSIFIED_SYS_PROPERTIES_FILE)) {
        return;
    }
    pairs.InsertInto(aMap);
    aMap.emplace(Keys::TALVIK_CLASSIFIED_SYS_CONFIG_DIR, directory);
}

const PropertyMap& Properties()
{
    static const PropertyMap properties = [] {
        PropertyMap map;
        try {
            Fill(map);
        } catch (...) {
            // An installation without readable properties is a plain one: what was read so far is kept.
            return map;
        }
        return map;
    }();
    return properties;
}

}  // namespace

bool CSMSysProperties::GetProperty(const char* aName, const char*& aValue) noexcept
{
    aValue = nullptr;
    try {
        const PropertyMap& properties = Properties();
        const auto found = properties.find(Util::CSMUtilString::Trim(aName == nullptr ? "" : aName));
        if (found != properties.end()) {
            aValue = found->second.c_str();
        }
    } catch (...) {
        // Only memory can fail here; the property is then as good as absent.
        aValue = nullptr;
    }
    return aValue != nullptr;
}

}  // namespace ORMO::SensorModel::CSM
