#pragma once

#include "../../foundation/Export.h"

#include <cstdint>

namespace ORMO::SensorModel::CSM {

/// Names of the Computer Graphics Metafile as NITF graphics use it: element codes and keywords, the values that the
/// NITF profile allows, the punctuation of the clear text, fonts, and element headers that are written as they stand.
///
/// Holder of constants; no object of it exists. ISO 8632-3 (binary encoding), ISO 8632-4 (clear text) and MIL-STD-2301
/// (the profile).
class ORMO_CSM_API CGMCnst
{
public:
    /// The two forms in which an element can be written.
    enum EncodingType : int
    {
        ENCODING_TYPE_BINARY = 0,
        ENCODING_TYPE_CLEAR_TEXT = 1
    };

    static constexpr int CURRENT_NITF_CGM_VERSION = 1;

    // Classes of elements. "PREMITIVE" is how hosts know this name.
    static constexpr int BINARY_ENCODING_ELEMENT_DELIMITER = 0;
    static constexpr int BINARY_ENCODING_ELEMENT_METAFILE_DESCRIPTOR = 1;
    static constexpr int BINARY_ENCODING_ELEMENT_PICTURE_DESCRIPTOR = 2;
    static constexpr int BINARY_ENCODING_ELEMENT_CONTROL = 3;
    static constexpr int BINARY_ENCODING_ELEMENT_GRAPHICAL_PREMITIVE = 4;
    static constexpr int BINARY_ENCODING_ELEMENT_ATTRIBUTE = 5;
    static constexpr int BINARY_ENCODING_ELEMENT_ESCAPE = 6;
    static constexpr int BINARY_ENCODING_ELEMENT_EXTERNAL = 7;
    static constexpr int BINARY_ENCODING_ELEMENT_SEGMENT = 8;
    static constexpr int BINARY_ENCODING_ELEMENT_APPLICATION_STRUCTURE_DESCRIPTOR = 9;

    // Ids of the elements of each class in the binary encoding.
    class BinaryC0Delimiter
    {
    public:
        static constexpr int CODE_BEGIN_METAFILE = 1;
        static constexpr int CODE_END_METAFILE = 2;
        static constexpr int CODE_BEGIN_PICTURE = 3;
        static constexpr int CODE_BEGIN_PICTURE_BODY = 4;
        static constexpr int CODE_END_PICTURE = 5;
    };

    class BinaryC1MetafileDescriptor
    {
    public:
        static constexpr int CODE_METAFILE_VERSION = 1;
        static constexpr int CODE_METAFILE_DESCRIPTION = 2;
        static constexpr int CODE_METAFILE_ELEMENT_LIST = 11;
        static constexpr int CODE_FONT_LIST = 13;
        // The shorthand for the set "drawing plus control", as class and id, and the number of such pairs.
        static constexpr int VAL_DRAWING_PLUS_CONTROL_SET_CLASS = -1;
        static constexpr int VAL_DRAWING_PLUS_CONTROL_SET_ID = 1;
        static constexpr int VAL_NUM_ELEMENT_SPECIFICATIONS = 1;
    };

    class BinaryC2PictureDescriptor
    {
    public:
        static constexpr int CODE_COLOUR_SELECTION_MODE = 2;
        static constexpr int CODE_LINE_WIDTH_SPECIFICATION_MODE = 3;
        static constexpr int CODE_EDGE_WIDTH_SPECIFICATION_MODE = 5;
        static constexpr int CODE_VDC_EXTENT = 6;
        static constexpr int VAL_COLOUR_SELECTION_MODE_DIRECT = 1;
        static constexpr int VAL_WIDTH_SPECIFICATION_MODE_ABSOLUTE = 0;
    };

    class BinaryC4GraphicalPrimitive
    {
    public:
        static constexpr int CODE_POLYLINE = 1;
        static constexpr int CODE_TEXT = 4;
        static constexpr int CODE_POLYGON = 7;
        static constexpr int CODE_RECTANGLE = 11;
        static constexpr int CODE_CIRCLE = 12;
        static constexpr int CODE_CIRCULAR_ARC_CENTRE = 15;
        static constexpr int CODE_CIRCULAR_ARC_CENTRE_CLOSE = 16;
        static constexpr int CODE_ELLIPSE = 17;
        static constexpr int CODE_ELLIPTICAL_ARC = 18;
        static constexpr int CODE_ELLIPTICAL_ARC_CLOSE = 19;
        static constexpr int VAL_CLOSURE_PIE = 0;
        static constexpr int VAL_CLOSURE_CHORD = 1;
        static constexpr int VAL_TEXT_NOT_FINAL = 0;
        static constexpr int VAL_TEXT_FINAL = 1;
    };

    class BinaryC5Attribute
    {
    public:
        static constexpr int CODE_LINE_TYPE = 2;
        static constexpr int CODE_LINE_WIDTH = 3;
        static constexpr int CODE_LINE_COLOUR = 4;
        static constexpr int CODE_TEXT_FONT_INDEX = 10;
        static constexpr int CODE_TEXT_COLOUR = 14;
        static constexpr int CODE_CHARACTER_HEIGHT = 15;
        static constexpr int CODE_CHARACTER_ORIENTATION = 16;
        static constexpr int CODE_INTERIOR_STYLE = 22;
        static constexpr int CODE_FILL_COLOUR = 23;
        static constexpr int CODE_EDGE_TYPE = 27;
        static constexpr int CODE_EDGE_WIDTH = 28;
        static constexpr int CODE_EDGE_COLOUR = 29;
        static constexpr int CODE_EDGE_VISIBILITY = 30;

        static constexpr int VAL_LINE_TYPE_SOLID = 1;
        static constexpr int VAL_LINE_TYPE_DASHED = 2;
        static constexpr int VAL_EDGE_TYPE_SOLID = 1;
        static constexpr int VAL_EDGE_TYPE_DASHED = 2;
        static constexpr int VAL_EDGE_VISIBILITY_OFF = 0;
        static constexpr int VAL_EDGE_VISIBILITY_ON = 1;
        static constexpr int VAL_INTERIOR_STYLE_HOLLOW = 0;
        static constexpr int VAL_INTERIOR_STYLE_SOLID = 1;
        static constexpr int VAL_INTERIOR_STYLE_PATTERN = 2;
        static constexpr int VAL_INTERIOR_STYLE_HATCH = 3;
        static constexpr int VAL_INTERIOR_STYLE_EMPTY = 4;
        static constexpr int VAL_INTERIOR_STYLE_GEOMETRIC_PATTERN = 5;
        static constexpr int VAL_INTERIOR_STYLE_INTERPOLATED = 6;
        static constexpr int VAL_MIN_COLOUR = 0;
        static constexpr int VAL_MAX_COLOUR = 255;
        static constexpr int VAL_CHARACTER_ORIENTATION_X_UP = 0;
        static constexpr int VAL_CHARACTER_ORIENTATION_Y_BASE = 0;

        static constexpr int VAL_NITF_DEFAULT_CODE_LINE_TYPE = 1;
        static constexpr int VAL_NITF_DEFAULT_CODE_LINE_WIDTH = 1;
        static constexpr int VAL_NITF_DEFAULT_CODE_EDGE_TYPE = 1;
        static constexpr int VAL_NITF_DEFAULT_CODE_EDGE_WIDTH = 1;
        static constexpr int VAL_NITF_DEFAULT_CODE_INTERIOR_STYLE = 1;
        static constexpr int VAL_NITF_DEFAULT_CODE_CHARACTER_HEIGHT = 10;
    };

    // Keywords of the elements in the clear-text encoding.
    class ClearTextC0Delimiter
    {
    public:
        static constexpr const char* CODE_BEGIN_METAFILE = "BEGMF";
        static constexpr const char* CODE_END_METAFILE = "ENDMF";
        static constexpr const char* CODE_BEGIN_PICTURE = "BEGPIC";
        static constexpr const char* CODE_BEGIN_PICTURE_BODY = "BEGPICBODY";
        static constexpr const char* CODE_END_PICTURE = "ENDPIC";
    };

    class ClearTextC1MetafileDescriptor
    {
    public:
        static constexpr const char* CODE_METAFILE_VERSION = "MFVERSION";
        static constexpr const char* CODE_METAFILE_DESCRIPTION = "MFDESC";
        static constexpr const char* CODE_METAFILE_ELEMENT_LIST = "MFELEMLIST";
        static constexpr const char* CODE_FONT_LIST = "FONTLIST";
        static constexpr const char* VAL_DRAWING_PLUS_CONTROL_SET = "drawingplus";
    };

    class ClearTextC2PictureDescriptor
    {
    public:
        static constexpr const char* CODE_COLOUR_SELECTION_MODE = "COLRMODE";
        static constexpr const char* CODE_LINE_WIDTH_SPECIFICATION_MODE = "LINEWIDTHMODE";
        static constexpr const char* CODE_EDGE_WIDTH_SPECIFICATION_MODE = "EDGEWIDTHMODE";
        static constexpr const char* CODE_VDC_EXTENT = "VDCEXT";
        static constexpr const char* VAL_COLOUR_SELECTION_MODE_DIRECT = "direct";
        static constexpr const char* VAL_WIDTH_SPECIFICATION_MODE_ABSOLUTE = "abs";
    };

    class ClearTextC4GraphicalPrimitive
    {
    public:
        static constexpr const char* CODE_POLYLINE = "LINE";
        static constexpr const char* CODE_TEXT = "TEXT";
        static constexpr const char* CODE_POLYGON = "POLYGON";
        static constexpr const char* CODE_RECTANGLE = "RECT";
        static constexpr const char* CODE_CIRCLE = "CIRCLE";
        static constexpr const char* CODE_CIRCULAR_ARC_CENTRE = "ARCCTR";
        static constexpr const char* CODE_CIRCULAR_ARC_CENTRE_CLOSE = "ARCCTRCLOSE";
        static constexpr const char* CODE_ELLIPSE = "ELLIPSE";
        static constexpr const char* CODE_ELLIPTICAL_ARC = "ELLIPARC";
        static constexpr const char* CODE_ELLIPTICAL_ARC_CLOSE = "ELLIPARCCLOSE";
        static constexpr const char* VAL_CLOSURE_PIE = "pie";
        static constexpr const char* VAL_CLOSURE_CHORD = "chord";
        static constexpr const char* VAL_TEXT_FINAL = "final";
        static constexpr const char* VAL_TEXT_NOT_FINAL = "notfinal";
    };

    class ClearTextC5Attribute
    {
    public:
        static constexpr const char* CODE_LINE_TYPE = "LINETYPE";
        static constexpr const char* CODE_LINE_WIDTH = "LINEWIDTH";
        static constexpr const char* CODE_LINE_COLOUR = "LINECOLR";
        static constexpr const char* CODE_TEXT_FONT_INDEX = "TEXTFONTINDEX";
        static constexpr const char* CODE_TEXT_COLOUR = "TEXTCOLR";
        static constexpr const char* CODE_CHARACTER_HEIGHT = "CHARHEIGHT";
        static constexpr const char* CODE_CHARACTER_ORIENTATION = "CHARORI";
        static constexpr const char* CODE_INTERIOR_STYLE = "INTSTYLE";
        static constexpr const char* CODE_FILL_COLOUR = "FILLCOLR";
        static constexpr const char* CODE_EDGE_TYPE = "EDGETYPE";
        static constexpr const char* CODE_EDGE_WIDTH = "EDGEWIDTH";
        static constexpr const char* CODE_EDGE_COLOUR = "EDGECOLR";
        static constexpr const char* CODE_EDGE_VISIBILITY = "EDGEVIS";
        static constexpr const char* VAL_EDGE_VISIBILITY_ON = "on";
        static constexpr const char* VAL_EDGE_VISIBILITY_OFF = "off";
        static constexpr const char* VAL_INTERIOR_STYLE_HOLLOW = "hollow";
        static constexpr const char* VAL_INTERIOR_STYLE_SOLID = "solid";
        static constexpr const char* VAL_INTERIOR_STYLE_PATTERN = "pat";
        static constexpr const char* VAL_INTERIOR_STYLE_HATCH = "hatch";
        static constexpr const char* VAL_INTERIOR_STYLE_EMPTY = "empty";
        static constexpr const char* VAL_INTERIOR_STYLE_GEOMETRIC_PATTERN = "geopat";
        static constexpr const char* VAL_INTERIOR_STYLE_INTERPOLATED = "interp";
    };

    // Punctuation of the clear text.
    static constexpr const char* CGM_TEXT_SOFT_SEPARATOR = " ";
    static constexpr const char* CGM_TEXT_HARD_SEPARATOR = ",";
    static constexpr const char* CGM_TEXT_POINT_BEGIN = "(";
    static constexpr const char* CGM_TEXT_POINT_END = ")";
    static constexpr const char* CGM_TEXT_ELEMENT_TERMINATOR = ";";
    static constexpr const char* CGM_TEXT_QUOTE = "\"";
    /// A text with one of these is quoted.
    static constexpr const char* CGM_TEXT_ENCLOSURE = " )(,";

    /// What the profile wants to read in MFDESC.
    static constexpr const char* NITF_METAFILE_DESCRIPTION_ELEMENT = "NITF/CGM-APP-2.0.";
    static constexpr const char* NITF_CGM_DEFAULT_FONT = "COURIER_BOLD";

    /// Colours of what is drawn before the metafile sets one.
    class NITFCGMDefaultValue
    {
    public:
        static constexpr int COLOR_RED = 0;
        static constexpr int COLOR_GREEN = 0;
        static constexpr int COLOR_BLUE = 0;
        static constexpr int LINE_COLOR_RED = 0;
        static constexpr int LINE_COLOR_GREEN = 0;
        static constexpr int LINE_COLOR_BLUE = 0;
        static constexpr int TEXT_COLOR_RED = 0;
        static constexpr int TEXT_COLOR_GREEN = 0;
        static constexpr int TEXT_COLOR_BLUE = 0;
        static constexpr int FILLED_AREA_EDGE_COLOR_RED = 0;
        static constexpr int FILLED_AREA_EDGE_COLOR_GREEN = 0;
        static constexpr int FILLED_AREA_EDGE_COLOR_BLUE = 0;
        static constexpr int FILLED_AREA_COLOR_RED = 255;
        static constexpr int FILLED_AREA_COLOR_GREEN = 255;
        static constexpr int FILLED_AREA_COLOR_BLUE = 255;
    };

    /// The font names of the profile.
    class NITFFont
    {
    public:
        static constexpr const char* COURIER = "COURIER";
        static constexpr const char* COURIER_BOLD = "COURIER_BOLD";
        static constexpr const char* COURIER_BOLD_ITALIC = "COURIER_BOLD_ITALIC";
        static constexpr const char* COURIER_ITALIC = "COURIER_ITALIC";
        static constexpr const char* HELVETICA = "HELVETICA";
        static constexpr const char* HELVETICA_BOLD = "HELVETICA_BOLD";
        static constexpr const char* HELVETICA_BOLD_OBLIQUE = "HELVETICA_BOLD_OBLIQUE";
        static constexpr const char* HELVETICA_OBLIQUE = "HELVETICA_OBLIQUE";
        static constexpr const char* TIMES_ROMAN = "TIMES_ROMAN";
        static constexpr const char* TIMES_BOLD = "TIMES_BOLD";
        static constexpr const char* TIMES_BOLD_ITALIC = "TIMES_BOLD_ITALIC";
        static constexpr const char* TIMES_ITALIC = "TIMES_ITALIC";
        static constexpr const char* HERSHEY_CARTOGRAPHIC_GREEK = "HERSHEY/CARTOGRAPHIC_GREEK";
        static constexpr const char* HERSHEY_CARTOGRAPHIC_ROMAN = "HERSHEY/CARTOGRAPHIC_ROMAN";
        static constexpr const char* HERSHEY_COMPLEX_CYRILLIC = "HERSHEY/COMPLEX_CYRILLIC";
        static constexpr const char* HERSHEY_COMPLEX_GREEK = "HERSHEY/COMPLEX_GREEK";
        static constexpr const char* HERSHEY_COMPLEX_ITALIC = "HERSHEY/COMPLEX_ITALIC";
        static constexpr const char* HERSHEY_COMPLEX_ROMAN = "HERSHEY/COMPLEX_ROMAN";
        static constexpr const char* HERSHEY_COMPLEX_SCRIPT = "HERSHEY/COMPLEX_SCRIPT";
        static constexpr const char* HERSHEY_DUPLEX_ROMAN = "HERSHEY/DUPLEX_ROMAN";
        static constexpr const char* HERSHEY_GOTHIC_ENGLISH = "HERSHEY/GOTHIC_ENGLISH";
        static constexpr const char* HERSHEY_GOTHIC_GERMAN = "HERSHEY/GOTHIC_GERMAN";
        static constexpr const char* HERSHEY_GOTHIC_ITALIAN = "HERSHEY/GOTHIC_ITALIAN";
        static constexpr const char* HERSHEY_SIMPLEX_GREEK = "HERSHEY/SIMPLEX_GREEK";
        static constexpr const char* HERSHEY_SIMPLEX_ROMAN = "HERSHEY/SIMPLEX_ROMAN";
        static constexpr const char* HERSHEY_SIMPLEX_SCRIPT = "HERSHEY/SIMPLEX_SCRIPT";
        static constexpr const char* HERSHEY_TRIPLEX_ITALIC = "HERSHEY/TRIPLEX_ITALIC";
        static constexpr const char* HERSHEY_TRIPLEX_ROMAN = "HERSHEY/TRIPLEX_ROMAN";
    };

    // Element headers ready to be written: class, id and, in the low five bits, the length of the parameters.
    static constexpr std::uint16_t BIN_ENCODE_BEGIN_METAFILE_SHORT_FORM_COMMAND_0_PARAM_LEN = 0x0020;
    static constexpr std::uint16_t BIN_ENCODE_BEGIN_METAFILE_LONG_FORM = 0x003F;
    static constexpr std::uint16_t BIN_ENCODE_END_METAFILE = 0x0040;
    static constexpr std::uint16_t BIN_ENCODE_BEGIN_PICTURE_SHORT_FORM_COMMAND_0_PARAM_LEN = 0x0060;
    static constexpr std::uint16_t BIN_ENCODE_BEGIN_PICTURE_LONG_FORM = 0x007F;
    static constexpr std::uint16_t BIN_ENCODE_BEGIN_PICTURE_BODY = 0x0080;
    static constexpr std::uint16_t BIN_ENCODE_END_PICTURE = 0x00A0;
    static constexpr std::uint16_t BIN_ENCODE_METAFILE_VERSION = 0x1022;
    static constexpr std::uint16_t BIN_ENCODE_METAFILE_DESCRIPTION = 0x1052;
    static constexpr std::uint16_t BIN_ENCODE_METAFILE_ELEMENT_LIST = 0x1166;
    static constexpr std::uint16_t BIN_ENCODE_FONT_LIST_SHORT_FORM = 0x11A0;
    static constexpr std::uint16_t BIN_ENCODE_FONT_LIST_LONG_FORM = 0x11BF;
    static constexpr std::uint16_t BIN_ENCODE_COLOR_SELECTION_MODE = 0x2042;
    static constexpr std::uint16_t BIN_ENCODE_VDC_EXTENT = 0x20C8;
    static constexpr std::uint16_t BIN_ENCODE_TEXT_SHORT_FORM = 0x4080;
    static constexpr std::uint16_t BIN_ENCODE_TEXT_LONG_FORM = 0x409F;
    static constexpr std::uint16_t BIN_ENCODE_TEXT_FONT_INDEX = 0x5142;
    static constexpr std::uint16_t BIN_ENCODE_TEXT_COLOR = 0x51C3;
    static constexpr std::uint16_t BIN_ENCODE_CHARACTER_HEIGHT = 0x51E2;
    static constexpr std::uint16_t BIN_ENCODE_CHARACTER_ORIENTATION = 0x5208;

private:
    CGMCnst() = delete;
};

}  // namespace ORMO::SensorModel::CSM
