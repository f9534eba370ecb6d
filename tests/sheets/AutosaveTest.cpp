// The session is on disk at every step, and comes back after a run that ended badly.
#include <sys/wait.h>
#include <unistd.h>

#include "SheetFixture.h"
#include "core/SafeFile.h"
#include "tests/support/Leftovers.h"
#include "tests/support/OrdinaryUser.h"

namespace tessarin {
namespace {

class AutosaveTest : public SheetTest {
  protected:
    AutosaveTest() { platform.programFolder = folder_.Path(); }

    /// A program started in that folder, as main does it.
    struct Program {
        explicit Program(ScriptedPlatform& platform)
            : main(platform.Services()), store(main, true) {
            main.Kumppanit().views = &store;
            main.Kaynnista();
        }
        PaaIkkuna main;
        SheetStore store;
    };
    std::string file_ = folder_.Path("autosave.tessarin");
};

TEST_F(AutosaveTest, EveryStepIsOnDiskUntilTheProgramEnds) {
    const std::string data = DataFile("one.fcs", 1);
    {
        Program first(platform);
        EXPECT_TRUE(platform.dialogs.questions.empty());
        EXPECT_FALSE(fs::exists(file_));
        first.main.AvaaTiedosto(data);
        EXPECT_NE(Bytes(file_).find("window.1.type:DotPlot"), std::string::npos);
        ChoosePopup(LastForm(), 3);
        EXPECT_NE(Bytes(file_).find("density.enabled:1"), std::string::npos);
        PalautaAlkutila();  // killed: nothing is put away
    }
    const pid_t child = fork();
    if (child == 0) {
        const SafeFile half(file_, WriteCare::kQuick);
        _exit(0);  // killed while it saves
    }
    waitpid(child, nullptr, 0);
    EXPECT_EQ(Leftovers(folder_.Path()).size(), 1U);
    platform.dialogs.answers = {false};
    {
        Program second(platform);
        EXPECT_TRUE(Leftovers(folder_.Path()).empty());
        EXPECT_EQ(platform.dialogs.questions.back().text,
                  "Tessarin was not closed properly. You want to recover the view?");
        EXPECT_EQ(platform.dialogs.questions.back().title, "Recovery");
        EXPECT_FALSE(Ikkunat(1).Used);
        EXPECT_TRUE(fs::exists(file_)) << "it stays until the next step";
        PalautaAlkutila();
    }
    Program third(platform);
    EXPECT_EQ(Info(1)[11], "density.enabled:1");
    EXPECT_EQ(Tiedostot(1).Path(), data);
    third.main.Command("FileExit");
    EXPECT_FALSE(fs::exists(file_));
    PalautaAlkutila();
}

TEST_F(AutosaveTest, ProgramsSideBySideKeepTheirOwn) {
    folder_.Write("autosave.tessarin", "of the other");
    platform.locks.others = {file_ + ".lock"};
    folder_.Write("autosave.tessarin.lock", "");
    Program program(platform);
    EXPECT_TRUE(platform.dialogs.questions.empty());
    program.main.Command("CreateDotPlot");
    EXPECT_EQ(Bytes(file_), "of the other");
    EXPECT_TRUE(fs::exists(folder_.Path("autosave-2.tessarin")));
    program.main.Command("FileExit");
    EXPECT_EQ(Bytes(file_), "of the other");
    PalautaAlkutila();
}

TEST_F(AutosaveTest, FailuresAreToldOnceAndWorkGoesOn) {
    Program program(platform);
    fs::remove_all(folder_.Path());
    program.main.Command("CreateDotPlot");
    program.main.Command("CreateHistogram");
    ASSERT_EQ(platform.dialogs.messages.size(), 1U);
    EXPECT_EQ(platform.dialogs.messages[0].text, "An error occured during the saving!");
    fs::create_directory(folder_.Path());
    program.main.Command("CreateDotPlot");
    EXPECT_TRUE(fs::exists(file_));
    fs::remove_all(folder_.Path());
    program.main.Command("CreateHistogram");
    EXPECT_EQ(platform.dialogs.messages.size(), 2U) << "another failure is told again";
    fs::create_directory(folder_.Path());
    program.main.Command("CreateHistogram");
    EXPECT_TRUE(fs::exists(file_));
    PalautaAlkutila();
}

TEST_F(AutosaveTest, WritesOnlyWhatIsNewAndNoHalfSession) {
    const std::string sheet = folder_.Write("two.tessarin",
                                            "window.1.type:DotPlot\n"
                                            "window.2.type:DotPlot\n");
    Program program(platform);
    program.main.Command("CreateDotPlot");
    ASSERT_TRUE(fs::exists(file_));
    fs::remove(file_);
    program.store.TalletaNakyma("Autosave");
    EXPECT_FALSE(fs::exists(file_)) << "nothing has changed";
    program.main.Command("CreateHistogram");
    const std::string before = Bytes(file_);
    EXPECT_NE(before.find("window.2.type:Histogram"), std::string::npos);
    platform.loop.atNextYield = [&] {
        program.store.TalletaNakyma("Autosave");
        EXPECT_EQ(Bytes(file_), before) << "the old session is the better one";
    };
    program.main.LataaNakyma(sheet);
    EXPECT_NE(Bytes(file_).find("window.2.type:DotPlot"), std::string::npos);

    const std::string saved = Bytes(file_);
    fs::permissions(folder_.Path(), fs::perms(0555));
    fs::permissions(file_, fs::perms(0666));
    {
        const OrdinaryUser user;  // may make no file there
        program.main.Command("CreateDotPlot");
    }
    fs::permissions(folder_.Path(), fs::perms(0755));
    program.main.Command("CreateDotPlot");
    EXPECT_EQ(Bytes(file_), saved) << "not tried again";
    EXPECT_TRUE(platform.dialogs.messages.empty());
    PalautaAlkutila();
}

TEST_F(AutosaveTest, StandsInTheUsersFolderWhereTheProgramsIsReadOnly) {
    platform.programFolder = folder_.Path("closed/");
    platform.dataFolder = folder_.Path();
    platform.locks.others = {folder_.Path("closed/autosave.tessarin.lock")};
    Program program(platform);
    program.main.Command("CreateDotPlot");
    EXPECT_TRUE(fs::exists(file_));
    PalautaAlkutila();
}

}  // namespace
}  // namespace tessarin
