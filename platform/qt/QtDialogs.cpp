#include "platform/qt/QtDialogs.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>
#include <utility>

#include "platform/qt/Conversions.h"
#include "platform/qt/FileFilter.h"

namespace tessarin {
namespace {

// A line end of any kind shows as one.
QString Lines(std::string_view text) {
    return ToQt(text).replace("\r\n", "\n").replace('\r', '\n');
}

constexpr QSize kFileDialogSize{940, 560};  // wide enough for long names beside size and date

QString Title(std::string_view title) {
    return AsTitle(title.empty() ? "Tessarin" : title);
}

// The toolkit's own file dialog shows its columns whole; a desktop's looks after itself.
void WidenColumns(QFileDialog& dialog, const QWidget& parent) {
    dialog.resize(kFileDialogSize.boundedTo(parent.screen()->availableSize()));
    if (const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"))) {
        list->header()->setStretchLastSection(false);
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    }
}

}  // namespace

ExtraButton QtDialogs::SetExtraButton(ExtraButton button) {
    return std::exchange(extra_, std::move(button));
}

QMessageBox::StandardButton QtDialogs::Shown(QMessageBox& box) {
    box.setParent(&parent_, box.windowFlags());
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton* extra = nullptr;
    if (!extra_.caption.empty()) {
        const bool alone = box.standardButtons() == QMessageBox::Ok;
        extra = box.addButton(ToQt(extra_.caption), QMessageBox::ActionRole);
        if (alone) {
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
    QMessageBox box(QMessageBox::Information, Title(title), Lines(text), QMessageBox::Ok);
    Shown(box);
}

bool QtDialogs::Ask(std::string_view text, std::string_view title, QuestionButtons buttons,
                    SafeAnswer safe) {
    const bool yesNo = buttons == QuestionButtons::kYesNo;
    const auto yes = yesNo ? QMessageBox::Yes : QMessageBox::Ok;
    const auto no = yesNo ? QMessageBox::No : QMessageBox::Cancel;
    QMessageBox box(QMessageBox::Question, Title(title), Lines(text), yes | no);
    box.setDefaultButton(safe == SafeAnswer::kYes ? yes : no);
    return Shown(box) == yes;
}

std::string QtDialogs::Input(std::string_view prompt, std::string_view title,
                             std::string_view preset) {
    QInputDialog dialog(&parent_);
    dialog.setWindowTitle(Title(title));
    dialog.setLabelText(Lines(prompt));
    dialog.setTextValue(ToQt(preset));
    if (auto* label = dialog.findChild<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
    }
    dialog.sizeHint();  // before which there are no buttons
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

QString QtDialogs::Chosen(QFileDialog& dialog, const QString& folder) const {
    WidenColumns(dialog, parent_);
    const QString start = !folder.isEmpty() && QDir(folder).exists() ? folder : folder_;
    if (!start.isEmpty()) {
        dialog.setDirectory(start);
    }
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

std::string QtDialogs::AskFile(const FileQuestion& question, QFileDialog::AcceptMode mode) {
    QFileDialog dialog(&parent_, Title(question.title), QString(), QtFilter(question.filter));
    dialog.setAcceptMode(mode);
    const bool opens = mode == QFileDialog::AcceptOpen;
    dialog.setFileMode(opens ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    // Whoever asks for a place asks about overwriting too.
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    const QFileInfo preset(ToQt(question.presetName));
    QString folder = ToQt(question.folder);
    if (preset.isDir()) {
        folder = preset.filePath();
    } else if (!question.presetName.empty()) {
        folder = preset.isAbsolute() ? preset.path() : folder;
        dialog.selectFile(preset.fileName());
    }
    const QString path = Chosen(dialog, folder);
    if (!path.isEmpty()) {
        folder_ = QFileInfo(path).absolutePath();
    }
    return FromQt(path);
}

std::string QtDialogs::OpenFile(const FileQuestion& question) {
    return AskFile(question, QFileDialog::AcceptOpen);
}

std::string QtDialogs::SaveFile(const FileQuestion& question) {
    return AskFile(question, QFileDialog::AcceptSave);
}

std::string QtDialogs::ChooseFolder(std::string_view title, std::string_view start) {
    QFileDialog dialog(&parent_, Title(title));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    const QString path = Chosen(dialog, ToQt(start));
    if (path.isEmpty()) {
        return "";
    }
    folder_ = path;
    return FromQt(path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/'));
}

std::optional<Rgb> QtDialogs::ChooseColor(Rgb current) {
    const QColor color = QColorDialog::getColor(ToQt(current), &parent_);
    if (!color.isValid()) {
        return std::nullopt;
    }
    return FromQt(color);
}

}  // namespace tessarin
