#pragma once

// Files of parameter data below both roots, read and changed through the library.

#include "exports_device/SetScene.h"
#include "support/OutputBuffer.h"
#include "support/ParameterDataFile.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvepa::test
{

class ParameterDataScene : public SetScene
{
protected:
    // Paths without extension.
    [[nodiscard]] std::wstring inData(std::wstring_view path) const;    // below the data folder
    [[nodiscard]] std::wstring inProgram(std::wstring_view path) const; // below the program folder

    // The file "werte" of the data folder's "data", which all that names no other is about.
    [[nodiscard]] std::wstring ourFile() const { return inData(L"data\\werte"); }

    static void WriteData(const std::wstring& path, const XmlContent& content);
    void WriteOurs(const XmlContent& content) const { WriteData(ourFile(), content); }
    void ExpectOurs(const XmlContent& content) const;
    [[nodiscard]] std::string OurBytes() const { return ReadBytes(ourFile() + L".xml"); }

    // The calls, each with buffers of the test's own.
    [[nodiscard]] std::int32_t Get(const wchar_t* parameter, OutputBuffer& value) const;
    [[nodiscard]] std::int32_t Enum(std::uint32_t index, OutputBuffer& name, OutputBuffer& value) const;
    [[nodiscard]] std::int32_t SetData(const wchar_t* parameter, const wchar_t* value,
                                       const wchar_t* type = L"string") const;
    [[nodiscard]] std::int32_t DelData(const wchar_t* parameter) const;

    // What is read, "(result N)" for a call that fails; and "name=value".
    [[nodiscard]] std::wstring Value(const wchar_t* folder, const wchar_t* subfolder, const wchar_t* file,
                                     const wchar_t* parameter) const;
    [[nodiscard]] std::wstring OurValue(const wchar_t* parameter) const;
    [[nodiscard]] std::wstring Item(const wchar_t* folder, const wchar_t* subfolder, const wchar_t* file,
                                    std::uint32_t index) const;
    [[nodiscard]] std::wstring OurItem(std::uint32_t index) const;

    // What a set or a deletion answers, and that the file stays byte for byte as it was.
    void ExpectSetDataChangesNothing(const wchar_t* parameter, const wchar_t* value, std::int32_t result,
                                     const wchar_t* type = L"string") const;
    void ExpectDelDataChangesNothing(const wchar_t* parameter, std::int32_t result) const;

    // What every operation answers while our file can't be used, and that none of them touches it.
    void ExpectAllAnswer(std::int32_t result) const;
};

// A buffer in which a call has set the first character to 0 and nothing else; and one that it left alone.
void ExpectEmptied(OutputBuffer buffer, std::uint32_t length);
void ExpectUntouched(const OutputBuffer& buffer, std::uint32_t length);

} // namespace norvepa::test
