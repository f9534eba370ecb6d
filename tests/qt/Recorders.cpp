#include "qt/Recorders.h"

#include <utility>

namespace tessarin {

void RecordingForm::Form_Resize(bool byUser) {
    Note(std::string(byUser ? "dragged " : "resize ") + std::to_string(form->ScaleWidth()) + " " +
         std::to_string(form->ScaleHeight()));
}

void RecordingForm::Form_QueryUnload() {
    Note("unload");
    if (!keepsFormOnClose) {
        form.reset();
    }
}

void RecordingForm::Kuva_MouseDown(const MouseEvent& mouse) {
    NoteMouse("press", mouse);
    onPress();
}

void RecordingForm::NoteMouse(const std::string& what, const MouseEvent& mouse) {
    Note(what + " " + std::to_string(static_cast<int>(mouse.button)) +
         (mouse.shift ? " shift " : " ") + std::to_string(static_cast<int>(mouse.x)) + " " +
         std::to_string(static_cast<int>(mouse.y)));
}

void RecordingMain::FilesDropped(const std::vector<std::string>& paths) {
    for (const std::string& path : paths) {
        Note("dropped " + path);
    }
}

Log RecordingMain::Take() {
    return std::exchange(log_, {});
}

WindowTest::WindowTest() : platform_({true, "", "", nullptr, nullptr, nullptr, nullptr}) {
    Main().SetEvents(&main_);
    Main().Show();
    LetEventsRun();
}

WindowTest::~WindowTest() {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        if (QGuiApplication::mouseButtons().testFlag(button)) {
            QTest::mouseRelease(Window().windowHandle(), button);
        }
    }
}

std::unique_ptr<RecordingForm> WindowTest::MakeChild(const std::string& name) {
    auto child = std::make_unique<RecordingForm>(name, log_);
    child->form = Main().MakeChild(*child);
    child->form->SetOuterSize(TwipsFromPixels(300), TwipsFromPixels(200));
    child->form->Show();
    LetEventsRun();
    return child;
}

ChildWindow& WindowTest::Shown(int place) {
    return dynamic_cast<ChildWindow&>(*Window().Area().subWindowList().at(place));
}

void WindowTest::Click(QWidget& widget, QPoint place, Qt::KeyboardModifiers keys,
                       Qt::MouseButton button) {
    QTest::mouseClick(Window().windowHandle(), button, keys, widget.mapTo(&Window(), place));
}

void WindowTest::DoubleClick(QWidget& widget, QPoint place) {
    QTest::mouseDClick(Window().windowHandle(), Qt::LeftButton, {}, widget.mapTo(&Window(), place));
}

void WindowTest::MoveTo(QWidget& widget, QPoint place) {
    QTest::mouseMove(Window().windowHandle(), widget.mapTo(&Window(), place));
    LetEventsRun();
}

Log WindowTest::Take() {
    LetEventsRun();
    std::erase_if(log_,
                  [](const std::string& line) { return line.find(" move ") != std::string::npos; });
    return std::exchange(log_, {});
}

void LetEventsRun() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

}  // namespace tessarin
