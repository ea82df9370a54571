#pragma once

// The questions to the catalogue: boards, protocols, templates; some are put to log devices and log names
// too.
//
// Each query has its own way to the file, which decides what it sees:
//   pull      the file as it is now, up to the first match
//   document  the file as it is now; 10,000,000 bytes at most, on a thread with COM
//   tree      the file as it was when it was first asked for, until NorvXMLEnumValue has reached its end
// Where nothing is said the name isn't escaped and ".xml" is added by the anywhere rule.
// PGSP_ERR_CANT_LOAD_XML_FILE for a file that isn't there, but PGSP_ERR_FILE_NOT_FOUND where a document is
// loaded. Buffer forms end with the output rule; of two texts the first is copied ahead of the second.
//
// Arguments and outputs are as in store/norvxml.h.

#include "frame/Result.h"
#include "store/BufferForms.h"

#include <cstdint>
#include <initializer_list>
#include <string>

namespace norvepa
{

// Pull, the name escaped. An attribute of the root element; the string is empty when it isn't there.
[[nodiscard]] Result NorvXMLElementGetAttribute(const wchar_t* filePath, const wchar_t* attribute,
                                                std::wstring* value);
[[nodiscard]] Result NorvXMLElementGetAttribute(const wchar_t* filePath, const wchar_t* attribute,
                                                wchar_t* buffer, std::uint32_t* length);

// Several of them in one pass. PGSP_OK when there is a root element; what it doesn't have is empty.
struct AttributeOutput
{
    const wchar_t* attribute;
    std::wstring* value;
};
[[nodiscard]] Result NorvXMLElementGetAttributes(const wchar_t* filePath,
                                                 std::initializer_list<AttributeOutput> outputs);

// Pull, ".xml" added without looking. A word of a parameter's section, ahead of its value collection.
[[nodiscard]] Result NorvXMLProtocolGetValue(const wchar_t* filePath, const wchar_t* parameter,
                                             const wchar_t* word, std::wstring* value);
[[nodiscard]] Result NorvXMLProtocolGetValue(const wchar_t* filePath, const wchar_t* parameter,
                                             const wchar_t* word, wchar_t* buffer, std::uint32_t* length);

// Tree. The value that a parameter's value gives to another one.
[[nodiscard]] Result NorvXMLProfileGetValue(const wchar_t* filePath, const wchar_t* parameter,
                                            const wchar_t* value, const wchar_t* word, std::wstring* text);
[[nodiscard]] Result NorvXMLProfileGetValue(const wchar_t* filePath, const wchar_t* parameter,
                                            const wchar_t* value, const wchar_t* word, wchar_t* buffer,
                                            std::uint32_t* length);

// Pull. The same below a sub-parameter; the search runs forward in the file and out of sections.
[[nodiscard]] Result NorvXMLSubProfileGetValue(const wchar_t* filePath, const wchar_t* parameter,
                                               const wchar_t* value, const wchar_t* subParameter,
                                               const wchar_t* subValue, const wchar_t* name,
                                               std::wstring* text);
[[nodiscard]] Result NorvXMLSubProfileGetValue(const wchar_t* filePath, const wchar_t* parameter,
                                               const wchar_t* value, const wchar_t* subParameter,
                                               const wchar_t* subValue, const wchar_t* name, wchar_t* buffer,
                                               std::uint32_t* length);

// Document. `parameterPath` is parameter\value or parameter\value\subparameter\subvalue; with "Constraints"
// anywhere in it the walk starts at the root's child of that name.
[[nodiscard]] Result NorvXMLProtocolGetValueRaw(const wchar_t* filePath, const wchar_t* parameterPath,
                                                const wchar_t* name, std::wstring* value);

// Pull, the name escaped but in the last. PGSP_OK when the file holds what the key names. More than three
// tokens, for protocols five, are PGSP_ERR_INVALID_PARAMETERS once the file is open. `flag` is not used.
[[nodiscard]] Result NorvXMLBoardKeyExists(const wchar_t* filePath, const wchar_t* key, std::int32_t flag);
[[nodiscard]] Result NorvXMLProtocolKeyExists(const wchar_t* filePath, const wchar_t* key, std::int32_t flag);
[[nodiscard]] Result NorvXMLTemplateKeyExists(const wchar_t* filePath, const wchar_t* key, std::int32_t flag);

// Pull, once; the answer, or that there is none, then stays for good, also when the file changes. A word of a
// parameter's section, as "type" or "min"; PGSP_OK with an empty value when the word has no text. Its text is
// the next one in the file.
[[nodiscard]] Result NorvXMLGetConstraint(const wchar_t* filePath, const wchar_t* parameter,
                                          const wchar_t* word, std::wstring* value);

// Tree. A baud rate by index; PGSP_ERR_NO_MORE_ITEMS past the last, PGSP_ERR_PARAM_NOT_FOUND without a list.
[[nodiscard]] Result NorvXMLEnumBaudrate(const wchar_t* filePath, std::uint32_t index, std::wstring* item);
[[nodiscard]] Result NorvXMLEnumProfileBaudrate(const wchar_t* filePath, const wchar_t* profile,
                                                std::uint32_t index, std::wstring* item);

// Tree. PGSP_OK when a value stands in a parameter's collection; only what is ahead of a "/" counts there.
[[nodiscard]] Result NorvXMLProfileCollectionExists(const wchar_t* filePath, const wchar_t* parameter,
                                                    const wchar_t* value);

// Tree. PGSP_OK when that section is there; PGSP_ERR_PARAM_NOT_FOUND also without a file.
[[nodiscard]] Result NorvXMLSubProfileCollectionExists(const wchar_t* filePath, const wchar_t* parameter,
                                                       const wchar_t* value, const wchar_t* subParameter,
                                                       const wchar_t* subValue);

// Tree. The description of a value; PGSP_ERR_PARAM_NOT_FOUND also without a file.
[[nodiscard]] Result NorvXMLGetParamDesc(const wchar_t* filePath, const wchar_t* parameter,
                                         const wchar_t* value, std::wstring* text);

// Tree. A parameter of a file by index, over all sections and the root's attributes. Index 0 works the list
// out anew; PGSP_ERR_NO_MORE_ITEMS behind a list that was known makes the next query read the file.
// PGSP_ERR_FILE_NOT_FOUND without a file. Lengths of 0 are refused.
[[nodiscard]] Result NorvXMLEnumValue(const wchar_t* filePath, std::uint32_t index, const PairBuffers& pair);

// Tree, the name escaped twice. A text of the value collection at a path such as "Constraints\baudrate".
[[nodiscard]] Result NorvXMLEnumValueCollectionRaw(const wchar_t* filePath, const wchar_t* key,
                                                   std::uint32_t index, std::wstring* item);

// Tree. (`Param`, `default`) of a section; NorvXMLEnumConstraintDefault answers NoLength without lengths.
[[nodiscard]] Result NorvXMLEnumProtocolValue(const wchar_t* filePath, std::uint32_t index,
                                              const PairBuffers& pair);
[[nodiscard]] Result NorvXMLEnumConstraintDefault(const wchar_t* filePath, std::uint32_t index,
                                                  const PairBuffers& pair);

// Tree. (word, text) of one parameter's section; NorvXMLEnumParamSection answers NoLength without lengths.
[[nodiscard]] Result NorvXMLEnumProtocolParameter(const wchar_t* filePath, const wchar_t* parameter,
                                                  std::uint32_t index, const PairBuffers& pair);
[[nodiscard]] Result NorvXMLEnumParamSection(const wchar_t* filePath, const wchar_t* parameter,
                                             std::uint32_t index, const PairBuffers& pair);

// Document. The entry of a profile at or behind a child's index; all children count, comments too.
[[nodiscard]] Result NorvXMLEnumProfileValue(const wchar_t* filePath, const wchar_t* parameter,
                                             const wchar_t* value, std::uint32_t index, std::wstring* name,
                                             std::wstring* text);
[[nodiscard]] Result NorvXMLEnumProfileValue(const wchar_t* filePath, const wchar_t* parameter,
                                             const wchar_t* value, std::uint32_t index,
                                             const PairBuffers& pair);

// Document. The sub-parameter likewise.
[[nodiscard]] Result NorvXMLEnumSubProfile(const wchar_t* filePath, const wchar_t* parameter,
                                           const wchar_t* value, std::uint32_t index,
                                           std::wstring* subParameter);

// Tree. The entry of a sub-profile by its number among those that hold anything.
[[nodiscard]] Result NorvXMLEnumSubProfileValue(const wchar_t* filePath, const wchar_t* parameter,
                                                const wchar_t* value, const wchar_t* subParameter,
                                                const wchar_t* subValue, std::uint32_t index,
                                                std::wstring* name, std::wstring* text);
[[nodiscard]] Result NorvXMLEnumSubProfileValue(const wchar_t* filePath, const wchar_t* parameter,
                                                const wchar_t* value, const wchar_t* subParameter,
                                                const wchar_t* subValue, std::uint32_t index,
                                                const PairBuffers& pair);

} // namespace norvepa
