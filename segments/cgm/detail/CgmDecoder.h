#pragma once

#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/cgm/detail/CgmElements.h"
#include "segments/cgm/detail/WordCursor.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// What a metafile says: the primitives in stream order, a line of clear text per decoded element, and what was wrong.
struct CgmContents
{
    CgmContents() = default;
    CgmContents(const CgmContents& aOther);
    CgmContents& operator=(const CgmContents&) = delete;
    ~CgmContents();

    std::vector<const NITFCGMGraphicPrimitive*> primitives;  ///< owned
    std::string clearText;                                   ///< all lines, one behind the other
    std::vector<std::size_t> lineEnds;
    std::size_t nonCompliant = 0;  ///< values that the profile does not allow
    std::size_t notDrawn = 0;      ///< graphical primitives that are not in the table
    bool ended = false;            ///< whether ENDMF stands in the stream
    std::array<int, 4> extent{};   ///< VDCEXT: lower left and upper right corner of the picture
    std::unique_ptr<CGMFault> fault;
};

/// Reads a stream element by element, in one pass and without recursion. Work and memory are bounded by the bytes that
/// are there, whatever lengths are written in them.
class CgmDecoder
{
public:
    CgmDecoder(std::string_view aStream, CgmContents& aContents);

    /// Reads to the end of the stream or to the first fault; what stands before the fault is kept.
    void Run();

private:
    struct Element
    {
        int elementClass = -1;
        int id = -1;
        std::uint64_t offset = 0;
        const CgmElement* row = nullptr;
        std::string_view parameters;
    };

    bool TakeElement(Element& aElement);
    bool Decode(const Element& aElement);
    bool DecodeAttribute(const Element& aElement);
    void NoteAttribute(const Element& aElement);
    bool DecodePrimitive(const Element& aElement);
    void DecodeNote(const Element& aElement);
    bool CheckFonts();
    const std::string& Font() const;
    void AppendLine(const CgmElement& aRow, std::span<const int> aNumbers);
    bool Fail(const Element& aElement, const std::string& aReason);

    WordCursor m_stream;
    CgmContents& m_contents;
    CgmState m_state;
    std::vector<std::string> m_fonts;
    Element m_fontIndex;         // the last element that set it
    bool m_isOriented = false;   // whether the metafile has set the orientation of characters
    std::vector<int> m_numbers;  // of the element at hand; kept, as are the texts, to allocate once
    std::vector<std::string> m_texts;
};

}  // namespace ORMO::SensorModel::CSM::Detail
