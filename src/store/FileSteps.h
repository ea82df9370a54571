#pragma once

// The steps of a change on whole files, each in two halves: what can run out of memory first, the step
// itself later. A swap gets its steps ready ahead of the first, so that none is missing once a file has gone.
//
// Paths are those that the store takes, and must outlive the object: there may be no memory for a copy.

#include "frame/Result.h"

#include <string>

namespace norvepa
{

class Deletion
{
public:
    explicit Deletion(const wchar_t* filePath);

    // As NorvXMLDeleteFile.
    [[nodiscard]] Result Run() const noexcept;

private:
    const wchar_t* m_filePath;
    std::wstring m_file;
    Result m_escaping; // fills the one above
};

// The files of a step from one to another, as they are called on disk; empty when a path can't be escaped.
struct FilePair
{
    Result escaping;
    std::wstring oldFile;
    std::wstring newFile;
};

class Copying
{
public:
    Copying(const wchar_t* sourcePath, const wchar_t* destinationPath);

    // As NorvXMLCopyFile.
    [[nodiscard]] Result Run() const noexcept;

    [[nodiscard]] const std::wstring& newFile() const noexcept { return m_files.newFile; }

private:
    const wchar_t* m_destinationPath;
    FilePair m_files;
};

class Renaming
{
public:
    Renaming(const wchar_t* sourcePath, const wchar_t* destinationPath);

    // As NorvXMLRenameFile.
    [[nodiscard]] Result Run() const noexcept;

private:
    const wchar_t* m_destinationPath;
    FilePair m_files;
};

// A deletion and a renaming in one: the destination is never missing in between.
class Replacing
{
public:
    Replacing(const wchar_t* sourcePath, const wchar_t* destinationPath);

    // PGSP_ERR_CANT_DELETE_FILE when the destination can't be removed, PGSP_ERR_CANT_COPY_FILE when it is the
    // source that can't take its place: both files are then as they were.
    [[nodiscard]] Result Run() const noexcept;

private:
    const wchar_t* m_destinationPath;
    FilePair m_files;
};

} // namespace norvepa
