#pragma once

// The settings counter: four bytes that all traced processes map. A tool that changes them makes every
// process read its settings anew; nothing here ever writes them.

namespace norvepa
{

// Maps the counter, or makes it, unless that was done before, and lets every trace statement look at it.
// What can't be made is told to the debugger; the statements then see a counter that never changes.
void MakeSettingsCounter() noexcept;

// When the module goes: see TraceEnd. The statements see a counter that never changes from then on.
void CloseSettingsCounter() noexcept;

} // namespace norvepa
