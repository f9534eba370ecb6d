// How the program looks: the same on every desktop, whatever its theme.
#pragma once

#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QString>

#include "core/Color.h"

namespace tessarin {

/// Style and colours of the whole program. REQUIRES: the QApplication exists.
void SetLook();

/// Dark text on that background, for a part of the main window.
QPalette PaletteOn(Rgb background);
/// The program's sign in title bars: a cloud of dots between two axes.
QIcon ProgramIcon();
/// The side panel's letters, small enough for its rows.
QFont PanelFont();
/// Style sheet of the side panel's buttons, which are of one colour without any gradient.
QString PanelButtonStyle();

}  // namespace tessarin
