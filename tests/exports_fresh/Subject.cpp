#include "Subject.h"

#include "FileTimes.h"

namespace norvepa::test
{

Subject::Subject(Place& place, const Kind& kind, const std::wstring& object)
    : m_place(place),
      m_kind(kind),
      m_object(object),
      m_path(kind.path(place.roots, object)),
      m_twin(place.roots.folder() / (L"twins\\" + object + L".xml"))
{
}

void Subject::Make() const
{
    Write(m_kind.before);
    WriteBytes(m_twin, Bytes(m_kind.after));
    SetWriteTime(m_twin, TimesOf(m_path).written);
}

void Subject::Write(const Value& value) const
{
    WriteBytes(m_path, Bytes(value));
}

} // namespace norvepa::test
