// Dialogs, pop-up menus and the About box, with a user played by a timer.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/qt/FileFilter.h"
#include "qt/Recorders.h"

namespace tessarin {
namespace {

// Runs once the modal dialog, or the pop-up menu, is up.
template <typename Widget>
void WhenUp(std::function<void(Widget&)> act) {
    QTimer::singleShot(50, [act = std::move(act)] {
        QWidget* up = QApplication::activePopupWidget();
        up = up == nullptr ? QApplication::activeModalWidget() : up;
        auto* widget = qobject_cast<Widget*>(up);
        ASSERT_NE(widget, nullptr);
        act(*widget);
    });
}

class DialogsTest : public testing::Test {
  protected:
    DialogsTest() : platform_({false, "", "", nullptr, nullptr, nullptr, nullptr}) {
        platform_.Main().Show();
        LetEventsRun();
    }
    Dialogs& Asked() { return platform_.Services().dialogs; }
    QtPlatform platform_;
};

TEST_F(DialogsTest, QuestionsHaveTheirButtons) {
    const auto press = [](QMessageBox::StandardButton button) {
        WhenUp<QMessageBox>([button](QMessageBox& box) {
            ASSERT_NE(box.button(button), nullptr);
            box.button(button)->click();
        });
    };
    press(QMessageBox::Ok);
    EXPECT_TRUE(Asked().Ask("Really?", "Exit", QuestionButtons::kOkCancel));
    press(QMessageBox::Cancel);
    EXPECT_FALSE(Asked().Ask("Really?", "Exit", QuestionButtons::kOkCancel));
    press(QMessageBox::Yes);
    EXPECT_TRUE(Asked().Ask("Recover?", "Recovery", QuestionButtons::kYesNo));
    press(QMessageBox::No);
    EXPECT_FALSE(Asked().Ask("Recover?", "Recovery", QuestionButtons::kYesNo));
    WhenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "<b>file</b>.fcs");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.reject();
    });
    Asked().Message("<b>file</b>.fcs", "Load error");
}

TEST_F(DialogsTest, BoxesCarryAnExtraButton) {
    int pressed = 0;
    EXPECT_EQ(Asked().SetExtraButton({"Stop", [&pressed] { ++pressed; }}).caption, "");
    const auto press = [](QMessageBox& box) {
        const auto buttons = box.buttons();
        const auto stop = std::find_if(buttons.begin(), buttons.end(), [](QAbstractButton* button) {
            return button->text() == "Stop";
        });
        ASSERT_NE(stop, buttons.end());
        (*stop)->click();
    };
    WhenUp<QMessageBox>(press);
    Asked().Message("one", "Message");
    EXPECT_EQ(pressed, 1);
    WhenUp<QMessageBox>(press);
    EXPECT_FALSE(Asked().Ask("Go on?", "", QuestionButtons::kOkCancel));
    EXPECT_EQ(pressed, 2);
    WhenUp<QInputDialog>([](QInputDialog& dialog) {
        dialog.setTextValue("500");
        for (auto* button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == "Stop") {
                button->click();
            }
        }
    });
    EXPECT_EQ(Asked().Input("How many?", "", ""), "");
    EXPECT_EQ(pressed, 3);
    WhenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    Asked().Message("two", "Message");
    WhenUp<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Ok)->click(); });
    EXPECT_TRUE(Asked().Ask("Go on?", "", QuestionButtons::kOkCancel));
    EXPECT_EQ(pressed, 3) << "the boxes' own buttons mean what they mean";
    EXPECT_EQ(Asked().SetExtraButton({}).caption, "Stop");
    WhenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.buttons().size(), 1);
        box.reject();
    });
    Asked().Message("three", "Message");
}

TEST_F(DialogsTest, LineEndsOfAnyKindShow) {
    WhenUp<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.labelText(), "one\ntwo\nthree\nfour");
        dialog.reject();
    });
    Asked().Input("one\rtwo\r\nthree\nfour", "", "");
    WhenUp<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "one\ntwo");
        box.reject();
    });
    Asked().Message("one\rtwo", "Message");
}

TEST_F(DialogsTest, EnterGivesTheSafeAnswer) {
    for (const SafeAnswer safe : {SafeAnswer::kNo, SafeAnswer::kYes}) {
        for (const QuestionButtons buttons :
             {QuestionButtons::kOkCancel, QuestionButtons::kYesNo}) {
            WhenUp<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
            EXPECT_EQ(Asked().Ask("Overwrite?", "Save", buttons, safe), safe == SafeAnswer::kYes);
        }
    }
}

TEST_F(DialogsTest, EveryBoxHasATitle) {
    QStringList titles;
    const auto close = [&titles] {
        WhenUp<QDialog>([&titles](QDialog& box) {
            titles.append(box.windowTitle());
            box.reject();
        });
    };
    for (const char* title : {"", "Load error"}) {
        close();
        Asked().Message("text", title);
        close();
        Asked().Ask("text", title, QuestionButtons::kYesNo);
        close();
        Asked().Input("text", title, "");
    }
    EXPECT_EQ(titles, (QStringList{"Tessarin", "Tessarin", "Tessarin", "Load error", "Load error",
                                   "Load error"}));
}

TEST_F(DialogsTest, FileDialogsStartWhereTheyAreTold) {
    const QTemporaryDir folder;
    const QString path = folder.path() + "/";
    QDir(path).mkdir("data");
    QFile(path + "data/a very long name of a tube of the second day.fcs")
        .open(QIODevice::WriteOnly);
    const std::string data = (path + "data/").toStdString();
    QStringList started;
    const auto answer = [&](const QString& name) {
        WhenUp<QFileDialog>([&started, name](QFileDialog& dialog) {
            started.append(dialog.directory().dirName());
            if (name.isEmpty()) {
                dialog.reject();
                return;
            }
            dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
            static_cast<QDialog&>(dialog).accept();
        });
    };
    FileQuestion question{"Open FCS file", "FCS files (*.*)|*.*"};
    question.folder = data;
    answer("a very long name of a tube of the second day.fcs");
    EXPECT_EQ(Asked().OpenFile(question),
              data + "a very long name of a tube of the second day.fcs");
    question.folder = "/no such folder/";
    answer("");
    EXPECT_EQ(Asked().OpenFile(question), "");
    question.folder = path.toStdString();
    question.presetName = "new.fcs";
    answer("other.fcs");
    EXPECT_EQ(Asked().SaveFile(question), path.toStdString() + "other.fcs");
    question.presetName = data + "new.fcs";
    answer("");
    EXPECT_EQ(Asked().SaveFile(question), "");
    EXPECT_EQ(started, (QStringList{"data", "data", QDir(path).dirName(), "data"}))
        << "where told, else where the last answer lies";
}

TEST_F(DialogsTest, AFolderIsChosenByADialogOfItsOwn) {
    const QTemporaryDir folder;
    const std::string path = folder.path().toStdString() + "/";
    WhenUp<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Choose a folder");
        EXPECT_EQ(dialog.fileMode(), QFileDialog::Directory);
        static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_EQ(Asked().ChooseFolder("Choose a folder", path), path);
    WhenUp<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(Asked().ChooseFolder("Choose a folder", path), "");
}

TEST_F(DialogsTest, InputGivesTheTextOrNothing) {
    WhenUp<QInputDialog>([](QInputDialog& dialog) {
        EXPECT_EQ(dialog.labelText(), "Set the fast draw limit");
        EXPECT_EQ(dialog.textValue(), "10000");
        dialog.setTextValue("500");
        dialog.accept();
    });
    EXPECT_EQ(Asked().Input("Set the fast draw limit", "Set limit", "10000"), "500");
    WhenUp<QInputDialog>([](QInputDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(Asked().Input("Set the fast draw limit", "Set limit", "10000"), "");
}

TEST_F(DialogsTest, FileFiltersAreTranslated) {
    EXPECT_EQ(QtFilter("FCS files (*.*)|*.*"), "FCS files (*)");
    EXPECT_EQ(QtFilter("Text (*.txt)|*.txt; *.csv|All|*.*"), "Text (*.txt *.csv);;All (*)");
    EXPECT_EQ(QtFilter(""), "");
}

TEST_F(DialogsTest, PopUpMenusGiveTheChoice) {
    const std::vector<PopupEntry> entries{
        {"Show populations", true, false, {{"All events"}, {"Poly-1"}}},
        {"-"},
        {"Full draw", true, true, {}},
        {"Save R&D", false}};
    PopupMenus& popups = platform_.Services().popups;
    WhenUp<QMenu>([](QMenu& menu) {
        EXPECT_TRUE(menu.actions().at(1)->isSeparator());
        EXPECT_TRUE(menu.actions().at(2)->isChecked());
        EXPECT_FALSE(menu.actions().at(3)->isEnabled());
        EXPECT_EQ(menu.actions().at(3)->text(), "Save R&&D");
        menu.setActiveAction(menu.actions().at(2));
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    PopupChoice choice = popups.Show(entries);
    EXPECT_EQ(choice.item, 2);
    EXPECT_EQ(choice.child, -1);

    WhenUp<QMenu>([](QMenu& menu) {
        menu.setActiveAction(menu.actions().at(0));
        QTest::keyClick(&menu, Qt::Key_Right);
        QMenu* sub = menu.actions().at(0)->menu();
        sub->setActiveAction(sub->actions().at(1));
        QTest::keyClick(sub, Qt::Key_Return);
    });
    choice = popups.Show(entries);
    EXPECT_EQ(choice.item, 0);
    EXPECT_EQ(choice.child, 1);

    WhenUp<QMenu>([](QMenu& menu) { menu.close(); });
    EXPECT_EQ(popups.Show(entries).item, -1);
    EXPECT_EQ(popups.Show({}).item, -1);
}

TEST_F(DialogsTest, TheAboutBoxStandsInTheMiddleAndGoesByButtonAndKey) {
    const std::vector<std::string> lines{"Tessarin", "Version 1.2.1, released 2026-01-01"};
    MainWindow& window = platform_.Main().Window();
    WhenUp<QDialog>([&](QDialog& box) {
        EXPECT_EQ(box.palette().color(QPalette::Window), QColor(34, 30, 31));
        QStringList shown;
        for (const QLabel* label : box.findChildren<QLabel*>()) {
            shown += label->text();
            EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(Qt::white));
        }
        EXPECT_EQ(shown, (QStringList{"Tessarin", "Version 1.2.1, released 2026-01-01"}));
        const QPoint off = box.geometry().center() - window.frameGeometry().center();
        EXPECT_LE(off.manhattanLength(), 4);
        auto* close = box.findChild<QPushButton*>("SuljeNappi");
        EXPECT_EQ(close->text(), "Close");
        close->click();
    });
    platform_.Main().ShowAbout(lines);
    WhenUp<QDialog>([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    platform_.Main().ShowAbout(lines);
}

}  // namespace
}  // namespace tessarin
