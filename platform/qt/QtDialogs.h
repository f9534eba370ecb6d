// The dialogs on the screen, in front of the main window.
#pragma once

#include <QFileDialog>
#include <QMessageBox>
#include <QString>
#include <QWidget>

#include "platform/Dialogs.h"

namespace tessarin {

class QtDialogs : public Dialogs {
  public:
    explicit QtDialogs(QWidget& parent) : parent_(parent) {}

    ExtraButton SetExtraButton(ExtraButton button) override;
    void Message(std::string_view text, std::string_view title) override;
    using Dialogs::Ask;
    bool Ask(std::string_view text, std::string_view title, QuestionButtons buttons,
             SafeAnswer safe) override;
    std::string Input(std::string_view prompt, std::string_view title,
                      std::string_view preset) override;
    std::string OpenFile(const FileQuestion& question) override;
    std::string SaveFile(const FileQuestion& question) override;
    std::string ChooseFolder(std::string_view title, std::string_view start) override;
    std::optional<Rgb> ChooseColor(Rgb current) override;

  private:
    /// What was chosen in it; empty for Cancel. It starts in that folder when there is one of that
    /// name, else in the one of the last answer.
    QString Chosen(QFileDialog& dialog, const QString& folder) const;
    std::string AskFile(const FileQuestion& question, QFileDialog::AcceptMode mode);

    /// The button that was pressed; NoButton for the extra one.
    QMessageBox::StandardButton Shown(QMessageBox& box);

    QWidget& parent_;
    ExtraButton extra_;
    QString folder_;  // of the last answer
};

}  // namespace tessarin
