// The dialogs on the screen, in front of the main window.
#pragma once

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
    bool Ask(std::string_view text, std::string_view title, QuestionButtons buttons) override;
    std::string Input(std::string_view prompt, std::string_view title,
                      std::string_view preset) override;
    std::string OpenFile(const FileQuestion& question) override;
    std::string SaveFile(const FileQuestion& question) override;
    std::optional<Rgb> ChooseColor(Rgb current) override;

  private:
    /// Where a file dialog starts: the folder of the last answer, unless the name has its own.
    QString Start(const std::string& presetName) const;
    std::string Chosen(const QString& path);

    /// The button that was pressed; NoButton for the extra one.
    QMessageBox::StandardButton Box(QMessageBox::Icon icon, std::string_view text,
                                    std::string_view title, QMessageBox::StandardButtons buttons);

    QWidget& parent_;
    ExtraButton extra_;
    QString folder_;
};

}  // namespace tessarin
