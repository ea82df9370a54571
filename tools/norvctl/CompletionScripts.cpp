#include "CompletionScripts.h"

namespace norvctl
{

// Where norvctl ends with 1 a file of this machine is meant, which bash completes itself.
const std::string_view BashScript =
    R"script(# Completion of norvctl's commands, options and names. In ~/.bashrc:
#   eval "$(norvctl completion bash)"

_norvctl() {
    local answer
    COMPREPLY=()
    if answer=$(norvctl complete bash "${COMP_LINE:0:COMP_POINT}" "$COMP_WORDBREAKS" 2>/dev/null); then
        [[ -z $answer ]] || mapfile -t COMPREPLY <<<"$answer"
    else
        compopt -o default
    fi
}

complete -F _norvctl norvctl norvctl.exe
)script";

// The line goes through the environment: older versions hand on no word with a quotation mark as it is. A
// completion that has no words makes PowerShell look for files by itself.
const std::string_view PowerShellScript =
    R"script(# Completion of norvctl's commands, options and names. In the file that $PROFILE names:
#   norvctl completion powershell | Out-String | Invoke-Expression

Register-ArgumentCompleter -Native -CommandName norvctl, norvctl.exe -ScriptBlock {
    param($wordToComplete, $commandAst, $cursorPosition)

    $length = $cursorPosition - $commandAst.Extent.StartOffset
    $encoding = [Console]::OutputEncoding
    try {
        [Console]::OutputEncoding = New-Object System.Text.UTF8Encoding $false
        $env:NORVCTL_LINE = $commandAst.Extent.Text.PadRight($length).Substring(0, $length)
        norvctl complete powershell 2>$null | ForEach-Object {
            $text, $shown, $help = $_ -split "`t"
            New-Object System.Management.Automation.CompletionResult $text, $shown, 'ParameterValue', $help
        }
    } finally {
        $env:NORVCTL_LINE = $null
        [Console]::OutputEncoding = $encoding
    }
}
)script";

} // namespace norvctl
