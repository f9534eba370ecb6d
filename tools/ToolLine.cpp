#include "tools/ToolLine.h"

#include <algorithm>

#include "core/Text.h"

namespace tessarin {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    for (std::string_view line : Split(text, '\n')) {
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        lines.emplace_back(line);
    }
    lines.pop_back();
    return lines;
}

std::string_view Trimmed(std::string_view line) {
    const auto first = line.find_first_not_of(' ');
    return first == std::string_view::npos
               ? ""
               : line.substr(first, line.find_last_not_of(' ') - first + 1);
}

ToolLine::ToolLine(std::string_view line) {
    const auto pieces = Split(line, ':');
    if (pieces[0].empty()) {
        throw ToolFault{"The line has no first word"};
    }
    for (const std::string_view word : Split(pieces[0], '.')) {
        words.emplace_back(word);
    }
    std::string text = pieces.size() > 1 ? std::string(pieces[1]) : "";
    if (pieces.size() > 2) {
        text.append(":").append(pieces[2]);
    }
    value = ToolValue(std::move(text));
}

const std::string& ToolLine::Word(std::size_t n) const {
    return n < words.size() ? words[n] : throw ToolFault{kWordMissing};
}

ToolPattern::ToolPattern(std::string_view form) {
    for (const std::string_view word : Split(form, '.')) {
        const bool any = word.size() == 1 && word[0] >= 'A' && word[0] <= 'Z';
        words_.push_back(any ? std::vector<std::string_view>() : Split(word, '|'));
    }
}

bool ToolPattern::Agrees(std::span<const std::string_view> choices, std::string_view word) {
    return choices.empty() || std::find(choices.begin(), choices.end(), word) != choices.end();
}

ToolPattern::Fit ToolPattern::Fits(std::span<const std::string> words) const {
    const std::size_t both = std::min(words.size(), words_.size());
    for (std::size_t i = 0; i < both; ++i) {
        if (!Agrees(words_[i], words[i])) {
            return Fit::kNo;
        }
    }
    return words.size() < words_.size() ? Fit::kTooShort : Fit::kYes;
}

bool ToolPattern::MayFit(std::span<const std::string> words) const {
    return words.size() >= words_.size() &&
           std::equal(words_.begin(), words_.end(), words.begin(),
                      [](const auto& choices, const std::string& word) {
                          return word.find('$') != std::string::npos || Agrees(choices, word);
                      });
}

}  // namespace tessarin
