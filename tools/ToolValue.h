// Values of the tool language: raw text, or a number that a query gave.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarin {

/// What keeps a line of a tool from being carried out. Thrown while the line runs and caught at
/// its end, where the run stops.
struct ToolFault {
    std::string reason;  ///< a sentence for the user, without its full stop
};

/// The value behind a colon. A number of single precision keeps its own, shorter text.
class ToolValue {
  public:
    ToolValue() = default;
    explicit ToolValue(std::string text) : text_(std::move(text)) {}
    static ToolValue Of(double number);
    static ToolValue Of(float number);
    static ToolValue Of(bool yes) { return ToolValue(yes ? "true" : "false"); }

    const std::string& Text() const { return text_; }
    /// The number that it is or that its text is as a whole; nothing for other text.
    std::optional<double> Number() const;

  private:
    std::string text_;
    std::optional<double> number_;
};

/// Text as a number; a fault when it is none.
double NumberOf(std::string_view text);

/// The number at the front of a text; 0 when there is none.
double NumberInFront(std::string_view text);

/// A value as a number; a fault when it is none.
double NumberOf(const ToolValue& value);

/// A word as a number of a table, rounded; a fault when it is none or not from 1 to `most`.
int16_t SlotOf(std::string_view word, int most);
/// The same for the number of an event.
int32_t EventOf(std::string_view word, int32_t most);

}  // namespace tessarin
