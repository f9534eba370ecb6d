// What the program does when its memory is nearly gone. The toolkit and the libraries below it take
// memory that they get without a look, so going on would end in a crash or hang somewhere in them.
#pragma once

namespace tessarin {

/// Whether the largest event, a redraw of a whole screen, would find the memory it needs. Costs a
/// few microseconds.
bool HasRoomForAnEvent();

/// Says on standard error that there is not enough memory and ends the program with status 1, as a
/// kill would: the autosaved view stays and is offered at the next start.
[[noreturn]] void EndForMemory();

/// From now on shortage that nobody catches ends the program so.
void EndWhenMemoryIsGone();

/// The program ends so after that many seconds at the latest, whatever it waits for.
void EndForMemoryWithin(unsigned seconds);

}  // namespace tessarin
