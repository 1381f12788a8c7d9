// Draws the records of a metafile: the mapping, pens and brushes, polylines and filled figures that
// pictures of equations and of window shapes are made of. Any other record is reported.
#pragma once

#include <cstdint>
#include <vector>

#include "zxadlg/headless/types.h"

namespace headless {

class MetafilePlayer {
  public:
    // Fits what the records call their window into the rectangle, in device units; the device
    // context is put back as it was at the end.
    MetafilePlayer(HDC dc, const RECT& target);
    ~MetafilePlayer();
    MetafilePlayer(const MetafilePlayer&) = delete;
    MetafilePlayer& operator=(const MetafilePlayer&) = delete;

    // The bytes are those of a metafile whose records were counted.
    void Play(const std::vector<std::uint8_t>& bytes);

  private:
    using Words = std::vector<std::int16_t>;

    void PlayRecord(unsigned kind, const Words& words);
    void Make(HGDIOBJ object);
    void Fill(const Words& words);
    void Line(const Words& words);

    HDC m_dc;
    int m_saved;
    // By the place that the records select them from.
    std::vector<HGDIOBJ> m_objects;
};

}  // namespace headless
