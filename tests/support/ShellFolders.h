#pragma once

// The two folders of the system below which the store lies when the registry names no root, led
// elsewhere for this process. Wine asks the registry at each call, and so meets the redirected one;
// Windows asks its known folders instead, which nothing but an administrator can lead elsewhere.

#include <string>

namespace norvepa::test
{

// What follows the shell's folder.
inline const std::wstring FixedFolder = L"Marvolt\\Automation\\Corvane OAM";

// The registry has to be redirected already. A folder that doesn't exist makes the shell's answer a failure.
void SetCommonApplicationData(const std::wstring& folder);
void SetCommonProgramFiles(const std::wstring& folder);

} // namespace norvepa::test
