#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// Where the answers to host properties stand in a NITF file: one row per key, its sources in the order in which they
// are asked. Everything that answers or explains a property reads these rows.
namespace ORMO::SensorModel::CSM {

class ImageSupportDataNITF;

namespace Detail {

/// Where a source looks.
enum class PropertyPlace : std::uint8_t
{
    None,
    File,      ///< a field of the file header
    Image,     ///< a field of the image subheader
    FileTre,   ///< a field of a TRE of the file header
    ImageTre,  ///< a field of a TRE of the image, those of its overflow included
    AnyTre,    ///< the same, and after it the TREs of the file header
    Composed   ///< a text that is put together
};

/// Puts a text together; false when there is nothing to say.
using ComposeProperty = bool (*)(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);

struct PropertySource
{
    PropertyPlace place = PropertyPlace::None;
    const char* tre = "";    ///< tag
    const char* field = "";  ///< of the header or TRE; of a composed text what it is, for a person
    ComposeProperty compose = nullptr;
    bool isForHosts = false;  ///< NITFMetadataHelper asks it too

    /// The same source, which NITFMetadataHelper asks too.
    constexpr PropertySource ForHosts() const noexcept
    {
        PropertySource source = *this;
        source.isForHosts = true;
        return source;
    }
    /// "image TRE USE00A field SUN_EL".
    std::string Text() const;
};

/// What the values of a property are, which tells those that mean "not known".
enum class PropertyForm : std::uint8_t
{
    Text,     ///< without a letter or digit nothing is known
    Date,     ///< as the field writes it
    Degrees,  ///< a number; 999.9 means not known
    Percent,  ///< a number; 999 means not known
    Feet      ///< a number
};

/// The three groups of ImageSupportDataNITF: what names file and image, what is known of sensor and sun, texts about
/// all of it.
enum class PropertySet : std::uint8_t
{
    Identity = 1,
    Sensor = 2,
    Texts = 3
};

struct PropertyRow
{
    static constexpr std::size_t MOST_SOURCES = 7;

    const char* key = "";
    PropertySet set = PropertySet::Identity;
    PropertyForm form = PropertyForm::Text;
    const char* explanation = "";
    std::array<PropertySource, MOST_SOURCES> sources{};

    std::span<const PropertySource> Sources() const noexcept;
    /// Whether the answer differs from image to image.
    bool IsOfImage() const noexcept;
};

/// All rows, keys in alphabetical order.
std::span<const PropertyRow> PropertyRows() noexcept;
/// The row of a key, letter case counting; null when there is none.
const PropertyRow* FindPropertyRow(std::string_view aKey) noexcept;

/// The field of one source as it is stored. False, with a null view, when the segment, the TRE or the field is missing
/// and for a composed source. The bytes belong to the ISD.
[[nodiscard]] bool FieldOfSource(const PropertySource& aSource, const ImageSupportDataNITF& aIsd, std::size_t aImage,
                                 std::string_view& aValue);

/// The number in a text; false for any other text.
[[nodiscard]] bool NumberOfText(std::string_view aText, double& aNumber);

/// The value of a property without the blanks around it, and the source that had it: the first whose value is known.
/// False when none has.
[[nodiscard]] bool AnswerOfProperty(const PropertyRow& aRow, const ImageSupportDataNITF& aIsd, std::size_t aImage,
                                    std::string& aValue, const PropertySource*& aSource);

// The composed texts.
/// The product identifier of CSDIDA with what it means: "G2 (geo-referenced multispectral)".
bool ComposeProductId(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);
/// IID1 and IID2; IID in NITF 2.0.
bool ComposeImageIdentifier(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);
bool ComposeClassification(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);
bool ComposeFileMetadata(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);
bool ComposeFileName(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);
bool ComposeSummary(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);
bool ComposeVersion(const ImageSupportDataNITF& aIsd, std::size_t aImage, std::string& aText);

}  // namespace Detail

}  // namespace ORMO::SensorModel::CSM
