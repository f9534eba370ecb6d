// The end of a session.
#pragma once

namespace tessarin {

class PaaIkkuna;

/// Asks for confirmation and, on OK, ends the session: all windows and files go, the autosave
/// file is deleted and the process ends. True when it ended.
bool FileExit(PaaIkkuna& main);

}  // namespace tessarin
