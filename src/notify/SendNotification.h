#pragma once

// How a change is announced: the events of those who registered for it are set, by a short worker of its own.

namespace norvepa
{

// Announces that a file of a folder word was changed; `code` tells how ("2" made, "3" removed, "5" value
// set, "6" value removed). Returns at once and keeps nothing of the caller's; the change stands whatever
// becomes of its announcement. Nothing happens for a null file name or code, and for temporary log devices.
void SendNotificationBL(const wchar_t* FolderName, const wchar_t* FileName, const wchar_t* Code) noexcept;

} // namespace norvepa
