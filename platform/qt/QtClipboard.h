// The desktop's clipboard.
#pragma once

#include "platform/Services.h"

namespace tessarin {

class QtClipboard : public Clipboard {
  public:
    void Clear() override;
    void SetText(std::string_view text) override;
    void SetImage(const Bitmap& image) override;
    std::string Text() const override;
    Bitmap Image() const override;
};

}  // namespace tessarin
