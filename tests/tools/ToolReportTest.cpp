// What a tool writes to a disk that is full.
#include <sys/resource.h>

#include <csignal>

#include "ToolFixture.h"

namespace tessarin {
namespace {

// No file of this process grows beyond so many bytes while it lives, as if the disk were full.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        signal_ = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signal_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*signal_)(int) = nullptr;
};

class ToolReportTest : public ToolRunTest {
  protected:
    std::string Full() const {
        return "The report '" + folder_.Path("report") + "' could not be written: File too large";
    }
};

TEST_F(ToolReportTest, AReportThatFindsNoPlaceEndsTheRun) {
    const FullDisk full(10);
    EXPECT_EQ(Reason("output.write:more than ten bytes"), Full() + ".") << "told at the end";
    EXPECT_FALSE(ended_);
    EXPECT_EQ(platform.dialogs.messages.back().title, "Fatal error");
    EXPECT_EQ(Reason("output.write:more than ten bytes~output.close~message:never"),
              Full() + ": output.close");
    EXPECT_EQ(Reason("output.write:more than ten bytes~output.set:other~message:never"),
              Full() + ": output.set:other");
    EXPECT_EQ(Fails("output.write:more than ten bytes~end"), Full() + ".");
    // More than any buffer takes shows at a line, and is told once.
    EXPECT_EQ(Reason("do:100000~output.write:more than ten bytes~loop"),
              Full() + ": output.write:more than ten bytes");
    EXPECT_EQ(log_.str(), "");
    EXPECT_EQ(Fails("output.write:fits"), "");
}

}  // namespace
}  // namespace tessarin
