#include "service/norvepaLogDevBl64/DeviceCatalogue.h"

#include "catalogue/norvxmlCatalogue.h"
#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"

namespace norvepa
{

const std::wstring& DeviceCatalogue::dataFolder()
{
    if (!m_dataFolder)
    {
        m_dataFolder = GetDataFolder();
    }
    return *m_dataFolder;
}

std::optional<Result> DeviceCatalogue::Unavailable(const ExportFrame& frame, TracePlace place)
{
    if (dataFolder().empty())
    {
        return frame.FolderNotFound("Can not get ProgramData Path", place);
    }
    if (ProgramFolder().empty())
    {
        NORV_TRACE_AT(place, frame, TraceInfo, "Can not get Corvane OAM path from Program Files");
        return frame.Return(PGSP_OK, place);
    }
    if (m_board.empty())
    {
        ReadAttributes();
    }
    NORV_TRACE(frame, TraceInfo, "GetAttribute:   DeviceID=%s   NetType=%s", TraceToAnsi(m_deviceId.c_str()),
               TraceToAnsi(m_netType.c_str()));
    return std::nullopt;
}

const std::wstring& DeviceCatalogue::ProgramFolder()
{
    if (!m_programFolder)
    {
        m_programFolder = GetProgramFolder();
    }
    return *m_programFolder;
}

void DeviceCatalogue::ReadAttributes()
{
    const std::wstring file = LogDeviceFile(dataFolder(), m_logDevice);
    static_cast<void>(
        NorvXMLElementGetAttributes(file.c_str(), {{L"DeviceID", &m_deviceId}, {L"CP_TYPE", &m_netType}}));

    // The prefix goes ahead of whatever the device names, also of a name that has it already.
    std::wstring board(BoardPrefix);
    board += WithoutStar(m_deviceId);
    std::wstring protocol(ProtocolPrefix);
    protocol += m_netType;
    m_board = BoardFile(ProgramFolder(), board);
    m_protocol = ProtocolFile(ProgramFolder(), protocol);
}

} // namespace norvepa
