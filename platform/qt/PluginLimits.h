// Keeps the log of a run without a display free of what Qt says about that itself.
#pragma once

namespace tessarin {

/// The offscreen plugin names each thing that it leaves out, such as raising a window. From here
/// on such messages are dropped; all others go on to the handler that was there before.
void PassOverPluginLimits();

}  // namespace tessarin
