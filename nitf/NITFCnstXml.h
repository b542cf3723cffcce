#pragma once

#include "../foundation/Export.h"

namespace ORMO::SensorModel::CSM {

/// Names in the two documents that a file can be written as: the image support data and the validation summary.
///
/// Holder of constants only, reached through NITFCnst (as %NITFCnst::XML_ELEMENT_FH_FIELD). XML_ELEMENT_ and XML_ATTR_
/// texts are bare names, without brackets, blanks or quotation marks.
class ORMO_CSM_API NITFCnstXml
{
public:
    // The frame of the two documents. The schema files are given as the end of a URL.
    static constexpr const char* XML_ELEMENT_NITF = "NITF";
    static constexpr const char* XML_ELEMENT_NITF_VALIDATION_SUMMARY = "NITFValidationSummary";
    static constexpr const char* XML_ELEMENT_SUMMARY = "Summary";
    static constexpr const char* XML_SCHEMA_BASE = "http://ormo.example/schemas";
    static constexpr const char* XML_SCHEMA_FILE_ISD = "/raster/ImageSupportDataNITF.xsd";
    static constexpr const char* XML_SCHEMA_FILE_VALIDATION_SUMMARY = "/raster/ValidationSummaryNITF.xsd";
    static constexpr const char* XML_VERSION_VALIDATION_SUMMARY = "1.0";
    static constexpr const char* XML_NAMESPACE = "ORMO";
    static constexpr const char* XML_NAMESPACE_SCHEMA_INSTANCE = "http://www.w3.org/2001/XMLSchema-instance";

    // Headers and the groups in which they stand.
    static constexpr const char* XML_ELEMENT_NITF_FILE_HEADER = "NITFFileHeader";
    static constexpr const char* XML_ELEMENT_IMAGE_SEGMENT = "ImageSegment";
    static constexpr const char* XML_ELEMENT_GRAPHIC_SEGMENT = "GraphicSegment";
    static constexpr const char* XML_ELEMENT_SYMBOL_SEGMENT = "SymbolSegment";
    static constexpr const char* XML_ELEMENT_LABEL_SEGMENT = "LabelSegment";
    static constexpr const char* XML_ELEMENT_TEXT_SEGMENT = "TextSegment";
    static constexpr const char* XML_ELEMENT_DATA_EXTENSION_SEGMENT = "DataExtensionSegment";
    static constexpr const char* XML_ELEMENT_RESERVED_EXTENSION_SEGMENT = "ReservedExtensionSegment";
    static constexpr const char* XML_ELEMENT_RESERVED_SEGMENT = "ReservedSegment";
    static constexpr const char* XML_ELEMENT_IMAGE_SEGMENTS = "ImageSegments";
    static constexpr const char* XML_ELEMENT_GRAPHIC_SEGMENTS = "GraphicSegments";
    static constexpr const char* XML_ELEMENT_SYMBOL_SEGMENTS = "SymbolSegments";
    static constexpr const char* XML_ELEMENT_LABEL_SEGMENTS = "LabelSegments";
    static constexpr const char* XML_ELEMENT_TEXT_SEGMENTS = "TextSegments";
    static constexpr const char* XML_ELEMENT_DATA_EXTENSION_SEGMENTS = "DataExtensionSegments";
    static constexpr const char* XML_ELEMENT_RESERVED_EXTENSION_SEGMENTS = "ReservedExtensionSegments";

    // Fields, data and TREs of a header.
    static constexpr const char* XML_ELEMENT_FH_FIELD = "FHField";
    static constexpr const char* XML_ELEMENT_IS_FIELD = "ISField";
    static constexpr const char* XML_ELEMENT_GS_FIELD = "GSField";
    static constexpr const char* XML_ELEMENT_SS_FIELD = "SSField";
    static constexpr const char* XML_ELEMENT_LS_FIELD = "LSField";
    static constexpr const char* XML_ELEMENT_TS_FIELD = "TSField";
    static constexpr const char* XML_ELEMENT_DES_FIELD = "DESField";
    static constexpr const char* XML_ELEMENT_DES_CMPLX_FIELD = "DESCmplxField";
    static constexpr const char* XML_ELEMENT_DESSHF_FIELD = "DESSHFField";
    static constexpr const char* XML_ELEMENT_RES_FIELD = "RESField";
    static constexpr const char* XML_ELEMENT_TS_DATA = "TSData";
    static constexpr const char* XML_ELEMENT_DATA = "DATA";
    static constexpr const char* XML_ELEMENT_TRES = "TREs";
    static constexpr const char* XML_ELEMENT_TRE_FIELD = "TREField";
    static constexpr const char* XML_ELEMENT_TRE = "TRE";

    // Graphics, symbols and labels.
    static constexpr const char* XML_ELEMENT_CGM_METAFILE = "CGMMetafile";
    static constexpr const char* XML_ELEMENT_BITMAPPED_SYMBOL = "BitmappedSymbol";
    static constexpr const char* XML_ELEMENT_SYMBOL_COLOR = "SymbolColor";
    static constexpr const char* XML_ELEMENT_BITS_PER_PIXEL = "BitsPerPixel";
    static constexpr const char* XML_ELEMENT_IMAGE_ROW_COLUMN = "ImageRowColumn";
    static constexpr const char* XML_ELEMENT_UL_CORNER_COORDINATES = "ULCornerCoordinates";
    static constexpr const char* XML_ELEMENT_UL_PIXEL_ROW_COLUMN = "ULPixelRowColumn";
    static constexpr const char* XML_ELEMENT_COLOR_LUT = "ColorLUT";
    static constexpr const char* XML_ELEMENT_LUT_RED_COMPONENT = "LUTRedComponent";
    static constexpr const char* XML_ELEMENT_LUT_GREEN_COMPONENT = "LUTGreenComponent";
    static constexpr const char* XML_ELEMENT_LUT_BLUE_COMPONENT = "LUTBlueComponent";
    static constexpr const char* XML_ELEMENT_GRAY_SCALE_LUT = "GrayScaleLUT";
    static constexpr const char* XML_ELEMENT_OBJECT_SYMBOL = "ObjectSymbol";
    static constexpr const char* XML_ELEMENT_RGB_COLOR = "RGBColor";
    static constexpr const char* XML_ELEMENT_LINE_WIDTH = "LineWidth";
    static constexpr const char* XML_ELEMENT_LINE_COORDINATES = "LineCoordinates";
    static constexpr const char* XML_ELEMENT_BEGIN_ROW_COLUMN = "BeginRowColumn";
    static constexpr const char* XML_ELEMENT_END_ROW_COLUMN = "EndRowColumn";
    static constexpr const char* XML_ELEMENT_EDGE_WIDTH = "EdgeWidth";
    static constexpr const char* XML_ELEMENT_INTERIOR_STYLE = "InteriorStyle";
    static constexpr const char* XML_ELEMENT_HEIGHT = "Height";
    static constexpr const char* XML_ELEMENT_WIDTH = "Width";
    static constexpr const char* XML_ELEMENT_CENTER_COORDINATES = "CenterCoordinates";
    static constexpr const char* XML_ELEMENT_ROW_COLUMN = "RowColumn";
    static constexpr const char* XML_ELEMENT_ROTATION_ANGLE = "RotationAngle";
    static constexpr const char* XML_ELEMENT_DIAMETER = "Diameter";
    static constexpr const char* XML_ELEMENT_SEMIMAJOR_AXIS = "SemimajorAxis";
    static constexpr const char* XML_ELEMENT_SEMIMINOR_AXIS = "SemiminorAxis";
    static constexpr const char* XML_ELEMENT_NIB_WIDTH = "NibWidth";
    static constexpr const char* XML_ELEMENT_SHAFT_HEIGHT = "ShaftHeight";
    static constexpr const char* XML_ELEMENT_SHAFT_CENTER_COORDINATES = "ShaftCenterCoordinates";
    static constexpr const char* XML_ELEMENT_HEAD_ELEMENTS_LENGTH = "HeadElementsLength";
    static constexpr const char* XML_ELEMENT_SHAFT_WIDTH = "ShaftWidth";
    static constexpr const char* XML_ELEMENT_APEX_COORDINATES = "ApexCoordinates";
    static constexpr const char* XML_ELEMENT_BASE_OF_SHAFT_COORDINATES = "BaseOfShaftCoordinates";
    static constexpr const char* XML_ELEMENT_DASHED_LINE_STYLE = "DashedLineStyle";
    static constexpr const char* XML_ELEMENT_LABEL_DATA = "LabelData";
    static constexpr const char* XML_ELEMENT_LABEL_BACKGROUND_RGB_COLOR = "LabelBackgroundRGBColor";
    static constexpr const char* XML_ELEMENT_LABEL_TEXT_RGB_COLOR = "LabelTextRGBColor";
    static constexpr const char* XML_ELEMENT_LABEL_CELL_HEIGHT_WIDTH = "LabelCellHeightWidth";
    static constexpr const char* XML_ELEMENT_UL_CORNER_COORD_LABEL_BOUNDING_BOX = "ULCornerCoordLabelBoundingBox";
    static constexpr const char* XML_ELEMENT_UL_BOUNDING_BOX_ROW_COLUMN = "ULBoundingBoxRowColumn";
    /// The text inside LabelData; not to be taken for DATA.
    static constexpr const char* XML_ELEMENT_LABEL_DATA_TEXT = "Data";
    static constexpr const char* XML_ELEMENT_LABEL_DATA_AS_CGM = "LabelDataAsCGM";

    // Attributes, and the units that stand in them.
    static constexpr const char* XML_ATTR_XMLNS = "xmlns";
    static constexpr const char* XML_ATTR_VERSION = "version";
    static constexpr const char* XML_ATTR_TOTAL = "total";
    static constexpr const char* XML_ATTR_INDEX = "index";
    static constexpr const char* XML_ATTR_FIELD = "field";
    static constexpr const char* XML_ATTR_NAME = "name";
    static constexpr const char* XML_ATTR_SIZE = "size";
    static constexpr const char* XML_ATTR_TYPE = "type";
    static constexpr const char* XML_ATTR_EDITABLE = "editable";
    static constexpr const char* XML_ATTR_LONG_NAME = "longName";
    static constexpr const char* XML_ATTR_TAG = "tag";
    static constexpr const char* XML_ATTR_LENGTH = "length";
    static constexpr const char* XML_ATTR_CLASSIFICATION = "classification";
    static constexpr const char* XML_ATTR_REGISTER_GROUP = "registerGroup";
    static constexpr const char* XML_ATTR_BASE64_ENCODED = "base64Encoded";
    static constexpr const char* XML_ATTR_UNIT = "unit";
    static constexpr const char* XML_ATTR_VALUE = "value";
    static constexpr const char* XML_ATTR_ROTATION_POINT = "rotationPoint";
    static constexpr const char* XML_ATTR_XMLNS_XSD = "xmlns:xsd";
    static constexpr const char* XML_ATTR_SCHEMA_LOCATION = "xsd:schemaLocation";
    static constexpr const char* XML_UNIT_DEGREES = "degrees";
    static constexpr const char* XML_UNIT_PIXELS = "pixels";

protected:
    explicit NITFCnstXml() = delete;
};

}  // namespace ORMO::SensorModel::CSM
