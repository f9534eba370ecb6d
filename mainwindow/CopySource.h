// A child window that can be copied to the clipboard.
#pragma once

#include <cstdint>

namespace tessarin {

class CopySource {
  public:
    virtual ~CopySource() = default;
    /// Id of the window, or of the one that it belongs to; 0 when it has nothing to copy.
    virtual int16_t AnnaID() const = 0;
    /// Puts its image or text on the clipboard, which the caller has cleared.
    virtual void CopyToClipboard() = 0;
};

}  // namespace tessarin
