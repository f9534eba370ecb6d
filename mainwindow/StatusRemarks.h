// What stands in the status bar: a plain remark, or what is odd about files that are open.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/MainForm.h"

namespace tessarin {

/// What is odd about that file, as one line with its name; empty when the slot holds no file or
/// nothing is odd about it.
std::string FileOddity(int16_t slot);

class StatusRemarks {
  public:
    explicit StatusRemarks(MainForm& form) : form_(form) {}

    /// A plain remark takes the place of whatever stands there; empty clears it.
    void Show(const std::string& remark);
    /// `Edistyma` means progress: how far a long run is. It stands in front of whatever stands
    /// there until it is empty again.
    void Edistyma(const std::string& progress);
    /// A file was read just now: it and the other odd files are told of when it is odd itself.
    /// Otherwise the bar is cleared, unless an odd one was read in the same opening of several.
    void FileRead(int16_t slot);
    /// The active window shows that file: it is told of again, in place of other files. Any other
    /// remark gives way only to an odd file.
    void FileActive(int16_t slot);

    /// Several files are opened at once while one of these lives; they may stand within each other.
    /// Which windows become active meanwhile says nothing.
    class Opening {
      public:
        explicit Opening(StatusRemarks& remarks) : remarks_(remarks) { remarks_.BeginOpening(); }
        ~Opening() { remarks_.EndOpening(); }
        Opening(const Opening&) = delete;
        Opening& operator=(const Opening&) = delete;

      private:
        StatusRemarks& remarks_;
    };

  private:
    void BeginOpening();
    void EndOpening();
    void Tell(int16_t slot);
    void Put(std::vector<std::string> lines, StatusKind kind);
    void Refresh();

    MainForm& form_;
    std::vector<std::string> lines_;  // what stands there, but for the progress
    StatusKind kind_ = StatusKind::kRemark;
    std::string progress_;
    bool ofFiles_ = false;  // the bar tells of files, or that nothing is odd about the last one
    int16_t told_ = 0;      // the odd file told of last; 0 for none
    int openings_ = 0;
    bool oddInOpening_ = false;
};

}  // namespace tessarin
