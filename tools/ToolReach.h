// What a tool may write to: it may come from a stranger, and names files as it likes.
#pragma once

#include <string>

namespace tessarin {

/// Why a report may not be written at that path; empty when it may. A report continues ordinary
/// text alone, neither hidden (by its own name or a folder's) nor a program. Where no file is, it
/// may be made, under any name that is not hidden, but not through a link.
std::string ReportObstacle(const std::string& path);

/// Why the file at that path is none that a picture may replace; empty when it is, and when no
/// file is there. A picture replaces only another one, and no link that leads nowhere.
std::string PictureObstacle(const std::string& path);

}  // namespace tessarin
