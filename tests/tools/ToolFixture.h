// Runs lines of the tool language, for tests of it.
#pragma once

#include <gtest/gtest.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include "core/Text.h"
#include "mainwindow/WindowList.h"
#include "tests/support/FcsBuilder.h"
#include "tests/support/ProgramFixture.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/AnswerToolUser.h"
#include "tools/Skripti.h"
#include "tools/ToolList.h"
#include "tools/ToolPack.h"
#include "tools/ToolRun.h"

namespace tessarin {

class ToolRunTest : public ProgramTest {
  protected:
    /// Runs lines; "~" stands for a line end. What `output.write` wrote comes back, with "|" for
    /// each line end.
    std::string Run(const std::string& lines) {
        const std::string path = folder_.Path("report");
        std::filesystem::remove(path);
        AnswerToolUser user(answers_, platform.dialogs, nullptr, log_);
        platform.dialogs.messages.clear();
        ToolSurroundings surroundings{user};
        surroundings.showVariables = [this](const std::string& list) { shown_ = list; };
        surroundings.showRow = [this](int row) { row_ = row - 2; };
        surroundings.unseen = unseen_;
        row_ = 0;
        ToolRun run(main, surroundings);
        const std::string head = "folder.set:" + folder_.Path() + "~output.set:report~";
        ended_ = run.AjaOhjelma(KorvaaTeksti(head + lines + "~", "~", "\r\n"));
        EXPECT_FALSE(SkriptiKaynnissa);
        std::ifstream in(path, std::ios::binary);
        return KorvaaTeksti(std::string{std::istreambuf_iterator<char>(in), {}}, "\r\n", "|");
    }
    /// The message that the run stopped with, without the reason of a fault; empty when it did not.
    std::string Fails(const std::string& lines) {
        Run(lines);
        EXPECT_EQ(ended_, platform.dialogs.messages.empty()) << lines;
        return ended_ ? "" : std::string(Split(platform.dialogs.messages.back().text, '\n')[0]);
    }
    /// Why the run stopped, as the user reads it behind the first line of the one message.
    std::string Reason(const std::string& lines) {
        Run(lines);
        EXPECT_EQ(platform.dialogs.messages.size(), 1U) << lines;
        const std::string text = ended_ ? "" : platform.dialogs.messages.back().text;
        const std::size_t end = text.find('\n');
        return end == std::string::npos ? text : text.substr(end + 1);
    }
    static std::string Fault(int line) {
        return "There is an error in the code on line " + std::to_string(line + 2) + ". Aborting.";
    }
    /// Window 1 is a dot plot and window 2 a histogram on a file of four events.
    void OpenPlots() {
        PutFile(1, "tube.fcs",
                {{"a", false, 1000, {100, 200, 300, 800}}, {"b", true, 10000, {1, 10, 100, 1000}}});
        Tiedostot(1).Otsikko.SampleId = "S 1";
        CurrentFile = 1;
        NewDotPlot();
        Choose("CreateHistogram");
    }

    TemporaryFolder folder_;
    AnswerToolUser::Answers answers_;
    std::ostringstream log_;
    std::string shown_;
    bool ended_ = false;
    int row_ = 0;  // of the lines that ran, the one that ended the run; 0 for none
    bool unseen_ = false;
};

}  // namespace tessarin
