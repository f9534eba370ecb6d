// Writing beside a file: its rights, its name, its way to the disk and what a kill leaves behind.
#include "core/SafeFile.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "tests/support/Leftovers.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

std::string calls;  // what the system was asked for that matters after a loss of power

}  // namespace

// They stand in for the C library's fsync and rename, whose names they have when linked, and do the
// same.
extern "C" int ToldFlush(int file) __asm__("fsync");
extern "C" int ToldRename(const char* from, const char* to) noexcept __asm__("rename");

extern "C" int ToldFlush(int file) {
    struct stat status {};
    fstat(file, &status);
    calls += S_ISDIR(status.st_mode) ? "flush folder;" : "flush file;";
    return static_cast<int>(syscall(SYS_fsync, file));
}
extern "C" int ToldRename(const char* from, const char* to) noexcept {
    calls += "rename;";
    return renameat(AT_FDCWD, from, AT_FDCWD, to);
}

namespace tessarin {
namespace {

class SafeFileTest : public testing::Test {
  protected:
    std::string Content(const std::string& path) const {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    mode_t Rights(const std::string& path) const {
        struct stat status {};
        return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
    }
    // Writes with a program that is killed in the middle, and gives what lies there then.
    std::vector<std::string> Killed(const std::string& path) const {
        const pid_t child = fork();
        if (child == 0) {
            SafeFile file(path);
            file.Write("FCS3.0 of the other");
            _exit(0);
        }
        waitpid(child, nullptr, 0);
        return Leftovers(folder_.Path());
    }

    TemporaryFolder folder_;
};

TEST_F(SafeFileTest, TheDiskHasTheContentBeforeTheName) {
    calls.clear();
    EXPECT_EQ(WriteWhole(folder_.Path("new"), "content"), "");
    EXPECT_EQ(calls, "flush file;rename;flush folder;");
    calls.clear();
    SafeFile quick(folder_.Path("new"), WriteCare::kQuick);
    quick.Write("again");
    EXPECT_EQ(quick.Commit(), WriteResult::kDone);
    EXPECT_EQ(calls, "rename;");
    EXPECT_EQ(Content(folder_.Path("new")), "again");
}

TEST_F(SafeFileTest, WhatIsPrivateStaysSoFromTheFirstByte) {
    const mode_t mask = umask(022);
    for (const mode_t rights : {0600U, 0640U, 0666U, 0444U}) {
        const std::string path = folder_.Write("mine", "old");
        ASSERT_EQ(chmod(path.c_str(), rights), 0);
        SafeFile file(path);  // as root, who may write to any
        ASSERT_EQ(Leftovers(folder_.Path()).size(), geteuid() == 0 || rights != 0444 ? 1U : 0U);
        for (const std::string& beside : Leftovers(folder_.Path())) {
            EXPECT_EQ(Rights(beside), rights);
            EXPECT_EQ(file.Commit(), WriteResult::kDone);
        }
        EXPECT_EQ(Rights(path), rights);
        chmod(path.c_str(), 0600);
    }
    EXPECT_EQ(WriteWhole(folder_.Path("new"), ""), "");
    EXPECT_EQ(Rights(folder_.Path("new")), 0644U) << "a new file goes by the mask";
    umask(mask);
}

TEST_F(SafeFileTest, AnyNameThatFitsCanBeSaved) {
    for (const std::string& name :
         {std::string(255, 'n'), std::string("\xff\n.fcs"), std::string("-")}) {
        const std::string path = folder_.Path(name);
        EXPECT_EQ(WriteWhole(path, "one"), "") << name;
        EXPECT_EQ(WriteWhole(path, "two"), "") << name;
        EXPECT_EQ(Content(path), "two");
    }
}

TEST_F(SafeFileTest, WhatAKillLeavesGoesWithTheNextSave) {
    const std::string path = folder_.Write("a.fcs", "old");
    const auto left = Killed(path);
    ASSERT_EQ(left.size(), 1U);
    EXPECT_EQ(Content(path), "old");
    EXPECT_EQ(WriteWhole(folder_.Path("b.fcs"), "other"), "");
    EXPECT_EQ(Leftovers(folder_.Path()), left) << "another file's is not looked at";
    // As if a program that runs, the one that started this, were saving the same file.
    std::string others = left[0];
    others.replace(others.rfind('-') + 1, std::string::npos, std::to_string(getppid()) + ".part");
    std::ofstream(others) << "being written";
    EXPECT_EQ(WriteWhole(path, "new"), "");
    EXPECT_EQ(Leftovers(folder_.Path()), std::vector<std::string>{others});
    EXPECT_EQ(Content(path), "new");
    SafeFile first(path);
    SafeFile second(path);  // of one program at once
    first.Write("first");
    second.Write("second");
    EXPECT_EQ(first.Commit(), WriteResult::kDone);
    EXPECT_EQ(second.Commit(), WriteResult::kDone);
    EXPECT_EQ(Content(path), "second");
}

TEST_F(SafeFileTest, FailuresComeWithTheirReason) {
    const std::string full = folder_.Write("full", "old");
    const std::string large(200000, 'x');
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small = {50000, limit.rlim_max};
    std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_EQ(WriteWhole(full, large), "File too large");
    setrlimit(RLIMIT_FSIZE, &limit);
    EXPECT_EQ(Content(full), "old");

    EXPECT_EQ(WriteWhole(folder_.Path("missing/a"), "x"), "No such file or directory");
    EXPECT_EQ(WriteWhole(folder_.Path(), "x"), "it is a folder");
    EXPECT_EQ(WriteWhole("/dev/null", "x"), "it is no regular file");
    EXPECT_EQ(WriteWhole(folder_.Path(std::string(256, 'n')), "x"), "File name too long");
    ASSERT_EQ(chmod(full.c_str(), 0666), 0);
    const OrdinaryUser user;
    SafeFile noRight(full);  // may be written to, but not what should stand beside it
    EXPECT_EQ(noRight.Commit(), WriteResult::kDenied);
    EXPECT_EQ(noRight.Reason(), "Permission denied");
    EXPECT_TRUE(Leftovers(folder_.Path()).empty());
}

}  // namespace
}  // namespace tessarin
