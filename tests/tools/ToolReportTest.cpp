// What a tool writes: a disk that is full, and files that are not its to write to.
#include <sys/resource.h>
#include <sys/stat.h>

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
    std::string Content(const std::string& name) const {
        if (!std::filesystem::is_regular_file(folder_.Path(name))) {
            return "";
        }
        std::ifstream in(folder_.Path(name), std::ios::binary);
        return std::string{std::istreambuf_iterator<char>(in), {}};
    }
    std::string Full() const {
        return "The report '" + folder_.Path("report") + "' could not be written: File too large";
    }
};

TEST_F(ToolReportTest, AReportThatFindsNoPlaceEndsTheRun) {
    const FullDisk full(10);
    EXPECT_EQ(Reason("output.write:more than ten bytes"), Full() + ".") << "told at the end";
    EXPECT_FALSE(ended_);
    EXPECT_EQ(row_, 0) << "no line is at fault";
    EXPECT_EQ(platform.dialogs.messages.back().title, "Fatal error");
    EXPECT_EQ(Reason("output.write:more than ten bytes~output.close~message:never"),
              Full() + ": output.close");
    EXPECT_EQ(row_, 2);
    EXPECT_EQ(Reason("output.write:more than ten bytes~output.set:other~message:never"),
              Full() + ": output.set:other");
    EXPECT_EQ(Fails("output.write:more than ten bytes~end"), Full() + ".");
    // More than any buffer takes shows at a line, and is told once.
    EXPECT_EQ(Reason("do:100000~output.write:more than ten bytes~loop"),
              Full() + ": output.write:more than ten bytes");
    EXPECT_EQ(log_.str(), "");
    EXPECT_EQ(Fails("output.write:fits"), "");
}

TEST_F(ToolReportTest, AReportIsPutBehindTextAlone) {
    std::filesystem::create_directory(folder_.Path("place"));
    std::filesystem::create_directory(folder_.Path(".hidden"));
    folder_.Write(".hidden/keys", "one\n");
    folder_.Write(".bashrc", "alias a=b\n");
    folder_.Write("tool.sh", "#!/bin/sh\n");
    folder_.Write("early", std::string("FCS3.0\0 and text", 16) + std::string(4000, 'x'));
    folder_.Write("late", std::string(4000, 'x') + '\0');
    folder_.Write("middle", std::string(2000, 'x') + '\0' + std::string(2000, 'x'));
    folder_.Write("text", "one\n");
    folder_.Write("empty", "");
    std::filesystem::permissions(folder_.Path("tool.sh"), std::filesystem::perms::group_exec,
                                 std::filesystem::perm_options::add);
    std::filesystem::create_symlink(folder_.Path(".bashrc"), folder_.Path("link"));
    std::filesystem::create_symlink(folder_.Path(".profile"), folder_.Path("loose"));
    ASSERT_EQ(mkfifo(folder_.Path("pipe").c_str(), 0600), 0);
    struct Case {
        const char* name;
        const char* why;
    };
    for (const Case& c : {Case{".bashrc", " is a hidden file"},
                          {"link", " is a hidden file"},
                          {"loose", " is a link to a file that is not there"},
                          {"tool.sh", " is a program"},
                          {"early", " is no text"},
                          {"late", " is no text"},
                          {"place", ": it is a folder"},
                          {"pipe", ": it is no regular file"},
                          {"", ": it is a folder"},
                          {".new", " is a hidden file"},
                          {".hidden/keys", " is a hidden file"}}) {
        const std::string before = Content(c.name);
        const std::string line = std::string("output.set:") + c.name;
        EXPECT_EQ(Reason(line + "~output.write:more"),
                  "'" + folder_.Path(c.name) + "'" + c.why + ": " + line);
        EXPECT_EQ(Content(c.name), before) << c.name;
    }
    EXPECT_EQ(Reason("folder.set:/dev~output.set:full"),
              "'/dev/full': it is no regular file: output.set:full");
    Run("output.set:text~output.write:two~output.set:empty~output.write:1~output.set:middle~"
        "output.write:end~output.set:text~output.write:three");
    EXPECT_TRUE(ended_);
    EXPECT_EQ(Content("text"), "one\ntwo\r\nthree\r\n");
    EXPECT_EQ(Content("empty"), "1\r\n");
    EXPECT_TRUE(Content("middle").ends_with("xend\r\n"));
    EXPECT_EQ(Reason("output.set:no/such/report"), "The report '" + folder_.Path("no/such/report") +
                                                       "' could not be written: No such file or "
                                                       "directory: output.set:no/such/report");
}

TEST_F(ToolReportTest, APictureReplacesOnlyAPicture) {
    OpenPlots();
    folder_.Write("thesis.odt", "PK");
    folder_.Write("B", "B");
    ASSERT_EQ(mkfifo(folder_.Path("pipe").c_str(), 0600), 0);
    for (const char* name : {"thesis.odt", "B"}) {
        const std::string before = Content(name);
        const std::string line = std::string("w.1.saveimage:") + name;
        EXPECT_EQ(Reason(line), "'" + folder_.Path(name) +
                                    "' is there already and is no picture in BMP format: " + line);
        EXPECT_EQ(Content(name), before);
    }
    EXPECT_EQ(Reason("w.1.saveimage:pipe"),
              "'" + folder_.Path("pipe") + "': it is no regular file: w.1.saveimage:pipe");
    std::filesystem::create_symlink(folder_.Path("nowhere"), folder_.Path("loose"));
    EXPECT_EQ(Reason("w.1.saveimage:loose"),
              "'" + folder_.Path("loose") +
                  "' is a link to a file that is not there: w.1.saveimage:loose");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_.Path("loose")));
    Run("w.1.saveimage:new.bmp");
    const std::string first = Content("new.bmp");
    folder_.Write("new.bmp", "BM, an old one");
    Run("w.1.saveimage:new.bmp");
    EXPECT_TRUE(ended_);
    EXPECT_EQ(Content("new.bmp"), first);
    EXPECT_TRUE(Reason("w.1.saveimage:no/such.bmp").starts_with("The image could not be written"));
}

}  // namespace
}  // namespace tessarin
