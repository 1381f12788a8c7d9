// The bytes of a Windows metafile, as they stand in a picture resource or a stream: a header of
// nine words, then records of a length, a function and parameters, up to the empty record. Nothing
// outside of the given bytes is read.
#pragma once

#include <cstddef>
#include <cstdint>

namespace headless {

// The number of records without the last one; -1 when the header, a length or the end is wrong.
int CountMetafileRecords(const std::uint8_t* data, std::size_t size);

}  // namespace headless
