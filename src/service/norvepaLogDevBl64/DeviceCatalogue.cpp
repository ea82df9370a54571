#include "service/norvepaLogDevBl64/DeviceCatalogue.h"

#include "service/norvepaLogDevBl64/norvepaLogDevBl64.h"
#include "service/norvepaPgspBl64/norvepaPgspBl64.h"
#include "store/norvxmlCatalogue.h"

namespace norvepa
{

DeviceCatalogue CatalogueOf(const ExportFrame& frame, std::wstring_view dataFolder,
                            std::wstring_view programFolder, const wchar_t* logDevice)
{
    const std::wstring file = LogDeviceFile(dataFolder, logDevice);
    std::wstring deviceId;
    std::wstring netType;
    static_cast<void>(
        NorvXMLElementGetAttributes(file.c_str(), {{L"DeviceID", &deviceId}, {L"CP_TYPE", &netType}}));
    NORV_TRACE(frame, TraceInfo, "GetAttribute:   DeviceID=%s   NetType=%s", TraceToAnsi(deviceId.c_str()),
               TraceToAnsi(netType.c_str()));

    // The prefix goes ahead of whatever the device names, also of a name that has it already.
    std::wstring board(BoardPrefix);
    board += std::wstring_view(deviceId).substr(deviceId.starts_with(L'*') ? 1 : 0);
    std::wstring protocol(ProtocolPrefix);
    protocol += netType;
    return {BoardFile(programFolder, board), ProtocolFile(programFolder, protocol)};
}

Result NothingKnown(const ExportFrame& frame)
{
    NORV_TRACE(frame, TraceInfo, "Can not get Corvane OAM path from Program Files");
    return frame.Return(PGSP_OK);
}

} // namespace norvepa
