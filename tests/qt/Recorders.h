// Receivers that write down what the windows tell them, and a main window to test with.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/ChildWindow.h"
#include "platform/qt/QtForm.h"
#include "platform/qt/QtPlatform.h"

namespace tessarin {

using Log = std::vector<std::string>;

/// Writes "A activate", "A down 16" and so on into the log that it shares with others.
class RecordingForm : public FormEvents {
  public:
    RecordingForm(std::string name, Log& log) : name_(std::move(name)), log_(log) {}

    void Form_Activate() override { Note("activate"); }
    void Form_Resize(bool byUser) override;
    void Form_KeyDown(const KeyEvent& key) override {
        Note("down " + std::to_string(key.code) + (key.ctrl ? " ctrl" : ""));
    }
    void Form_KeyUp(const KeyEvent& key) override { Note("up " + std::to_string(key.code)); }
    void Form_MouseMove() override { ++moves; }
    void Form_QueryUnload() override;
    void Kuva_MouseDown(const MouseEvent& mouse) override;
    void Kuva_MouseMove(const MouseEvent& mouse) override { NoteMouse("move", mouse); }
    void Kuva_MouseUp(const MouseEvent& mouse) override { NoteMouse("release", mouse); }
    void Kuva_DoubleClick(const MouseEvent& mouse) override { NoteMouse("double", mouse); }
    void Kuva_MouseLost() override { Note("lost"); }

    std::unique_ptr<Form> form;
    int moves = 0;  // over controls
    bool keepsFormOnClose = false;
    std::function<void()> onPress = [] {};

  private:
    void Note(const std::string& what) { log_.push_back(name_ + " " + what); }
    void NoteMouse(const std::string& what, const MouseEvent& mouse);

    std::string name_;
    Log& log_;
};

class RecordingMain : public MainFormEvents {
  public:
    void Command(std::string_view command) override { Note("command " + std::string(command)); }
    void BackgroundMouseMove() override { Note("background"); }
    void PanelMouseMove() override { Note("panel"); }
    void FreezePanel(bool frozen) override { Note(frozen ? "freeze" : "thaw"); }
    void PanelRowSelected(int slot) override { Note("row " + std::to_string(slot)); }
    void PanelButtonPressed(PanelButton button) override {
        Note("button " + std::to_string(static_cast<int>(button)));
    }
    void PanelColorClicked(int slot, bool twice) override {
        Note("color " + std::to_string(slot) + (twice ? " twice" : " once"));
    }
    void PanelLabelDoubleClicked(int slot) override { Note("label " + std::to_string(slot)); }
    void CloseRequested() override { Note("close"); }
    void FilesDropped(const std::vector<std::string>& paths) override;

    /// What came since the last call.
    Log Take();

  private:
    void Note(const std::string& what) { log_.push_back(what); }
    Log log_;
};

/// A shown main window without dialogs, and child windows to put into it.
class WindowTest : public testing::Test {
  protected:
    WindowTest();
    /// Lets go of buttons that the test still holds, else the next test starts in a drag.
    ~WindowTest() override;

    /// A shown child of 300 by 200 pixels, frame included.
    std::unique_ptr<RecordingForm> MakeChild(const std::string& name);
    /// What Qt shows for the child that was made at that place, counted from 0.
    ChildWindow& Shown(int place);
    KuvaWidget& Picture(int place) { return dynamic_cast<KuvaWidget&>(*Shown(place).widget()); }
    MainWindow& Window() { return platform_.Main().Window(); }
    MainForm& Main() { return platform_.Main(); }
    /// Clicks and moves that go through the main window, as the desktop sends them.
    void Click(QWidget& widget, QPoint place, Qt::KeyboardModifiers keys = {},
               Qt::MouseButton button = Qt::LeftButton);
    void DoubleClick(QWidget& widget, QPoint place);
    void MoveTo(QWidget& widget, QPoint place);
    /// What the children said since the last call, "move" left out.
    Log Take();

    RecordingMain main_;
    Log log_;
    QtPlatform platform_;
};

void LetEventsRun();

}  // namespace tessarin
