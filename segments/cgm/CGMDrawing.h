#pragma once

#include "../../foundation/Export.h"

#include <string>

namespace ORMO::SensorModel::CSM {

class NITFCGMMetaFile;

/// Draws the primitives of a metafile as SVG 1.1 elements. One unit of the drawing is one pixel; x are columns, y rows.
class ORMO_CSM_API CGMDrawing
{
public:
    /// A rectangle, in pixels.
    struct Bounds
    {
        double left = 0;
        double top = 0;
        double right = 0;
        double bottom = 0;
    };

    /// Appends one group of elements in which the metafile's (0, 0) stands at the given column and row, such as
    /// NITFCGMMetaFile::GetAbsCCS answers them. The text is UTF-8 and well-formed whatever the metafile holds; it takes
    /// no more than a few times the bytes of the metafile.
    static void AppendSvg(const NITFCGMMetaFile& aMetafile, double aColumn, double aRow, std::string& aSvg);

    /// The smallest rectangle around all primitives, as columns and rows counted from the metafile's (0, 0), line
    /// widths left out; texts are estimated by their height and number of characters. False, with zeros, when nothing
    /// is drawn.
    static bool GetBounds(const NITFCGMMetaFile& aMetafile, Bounds& aBounds);

private:
    CGMDrawing() = delete;
};

}  // namespace ORMO::SensorModel::CSM
