#pragma once

// The images that a call reads, each taken once: a file is looked at once a call, whole, and so a call sees
// one state of it.
//
// Callers may rely on: an image is what the file says now. It comes from memory when the file is certainly
// what it was (see win/FileStamp.h), from the file otherwise. A file that can't be opened for reading answers
// so, also when its image is in memory. Callers must: ForgetImages() when they have written a file, made one
// or removed one: the rest of the call is to see that.

#include "xml/XmlImage.h"

#include <memory>
#include <string>

namespace norvepa
{

// Null, with the reason in `status`, when the file can't be opened for reading or there is no engine.
[[nodiscard]] std::shared_ptr<const XmlImage> ImageOf(const std::wstring& path, HRESULT& status);

// All that the present call has looked at.
void ForgetImages() noexcept;

// A walk over the files of a folder within one call. The folder is listed once, and a file that the listing
// says is unchanged isn't opened: its image answers, also while somebody keeps the file to himself.
class FolderWalk
{
public:
    explicit FolderWalk(const std::wstring& folder);
    FolderWalk(const FolderWalk&) = delete;
    FolderWalk& operator=(const FolderWalk&) = delete;
    ~FolderWalk();

private:
    class CallImages* m_call; // null outside of a call, and within another walk
};

} // namespace norvepa
