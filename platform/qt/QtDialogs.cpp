#include "platform/qt/QtDialogs.h"

#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>

#include "platform/qt/Conversions.h"
#include "platform/qt/FileFilter.h"

namespace tessarin {
namespace {

QMessageBox::StandardButton Box(QWidget& parent, QMessageBox::Icon icon, std::string_view text,
                                std::string_view title, QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, AsTitle(title), ToQt(text), buttons, &parent);
    box.setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

}  // namespace

void QtDialogs::Message(std::string_view text, std::string_view title) {
    Box(parent_, QMessageBox::Information, text, title, QMessageBox::Ok);
}

bool QtDialogs::Ask(std::string_view text, std::string_view title, QuestionButtons buttons) {
    const bool yesNo = buttons == QuestionButtons::kYesNo;
    const auto answer =
        Box(parent_, QMessageBox::Question, text, title,
            yesNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok | QMessageBox::Cancel);
    return answer == QMessageBox::Yes || answer == QMessageBox::Ok;
}

std::string QtDialogs::Input(std::string_view prompt, std::string_view title,
                             std::string_view preset) {
    QInputDialog dialog(&parent_);
    dialog.setWindowTitle(AsTitle(title));
    dialog.setLabelText(ToQt(prompt));
    dialog.setTextValue(ToQt(preset));
    if (auto* label = dialog.findChild<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    return dialog.exec() == QDialog::Accepted ? FromQt(dialog.textValue()) : std::string();
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
