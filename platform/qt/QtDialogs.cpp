#include "platform/qt/QtDialogs.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <utility>

#include "platform/qt/Conversions.h"
#include "platform/qt/FileFilter.h"

namespace tessarin {
namespace {

// A line end of any kind shows as one.
QString Lines(std::string_view text) {
    return ToQt(text).replace("\r\n", "\n").replace('\r', '\n');
}

}  // namespace

ExtraButton QtDialogs::SetExtraButton(ExtraButton button) {
    return std::exchange(extra_, std::move(button));
}

QMessageBox::StandardButton QtDialogs::Box(QMessageBox::Icon icon, std::string_view text,
                                           std::string_view title,
                                           QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, AsTitle(title), Lines(text), buttons, &parent_);
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton* extra = nullptr;
    if (!extra_.caption.empty()) {
        extra = box.addButton(ToQt(extra_.caption), QMessageBox::ActionRole);
        if (buttons == QMessageBox::Ok) {
            box.setEscapeButton(QMessageBox::Ok);  // which is not clear beside a second button
        }
    }
    const int pressed = box.exec();
    if (extra != nullptr && box.clickedButton() == extra) {
        extra_.onPress();
        return QMessageBox::NoButton;
    }
    return static_cast<QMessageBox::StandardButton>(pressed);
}

void QtDialogs::Message(std::string_view text, std::string_view title) {
    Box(QMessageBox::Information, text, title, QMessageBox::Ok);
}

bool QtDialogs::Ask(std::string_view text, std::string_view title, QuestionButtons buttons) {
    const bool yesNo = buttons == QuestionButtons::kYesNo;
    const auto answer =
        Box(QMessageBox::Question, text, title,
            yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok | QMessageBox::Cancel);
    return answer == QMessageBox::Yes || answer == QMessageBox::Ok;
}

std::string QtDialogs::Input(std::string_view prompt, std::string_view title,
                             std::string_view preset) {
    QInputDialog dialog(&parent_);
    dialog.setWindowTitle(AsTitle(title));
    dialog.setLabelText(Lines(prompt));
    dialog.setTextValue(ToQt(preset));
    if (auto* label = dialog.findChild<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    auto* buttons = dialog.findChild<QDialogButtonBox*>();
    bool extra = false;
    if (!extra_.caption.empty() && buttons != nullptr) {
        const QPushButton* button =
            buttons->addButton(ToQt(extra_.caption), QDialogButtonBox::ActionRole);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, &extra] {
            extra = true;
            dialog.reject();
        });
    }
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (extra) {
        extra_.onPress();
    }
    return accepted ? FromQt(dialog.textValue()) : std::string();
}

QString QtDialogs::Start(const std::string& presetName) const {
    QString name = ToQt(presetName);
    if (folder_.isEmpty() || QDir::isAbsolutePath(name)) {
        return name;
    }
    return QDir(folder_).filePath(name);
}

std::string QtDialogs::Chosen(const QString& path) {
    if (!path.isEmpty()) {
        folder_ = QFileInfo(path).absolutePath();
    }
    return FromQt(path);
}

std::string QtDialogs::OpenFile(const FileQuestion& question) {
    return Chosen(QFileDialog::getOpenFileName(
        &parent_, AsTitle(question.title), Start(question.presetName), QtFilter(question.filter)));
}

std::string QtDialogs::SaveFile(const FileQuestion& question) {
    // Whoever asks for a place asks about overwriting too.
    return Chosen(QFileDialog::getSaveFileName(
        &parent_, AsTitle(question.title), Start(question.presetName), QtFilter(question.filter),
        nullptr, QFileDialog::DontConfirmOverwrite));
}

std::optional<Rgb> QtDialogs::ChooseColor(Rgb current) {
    const QColor color = QColorDialog::getColor(ToQt(current), &parent_);
    if (!color.isValid()) {
        return std::nullopt;
    }
    return FromQt(color);
}

}  // namespace tessarin
