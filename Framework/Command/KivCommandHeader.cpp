#include "Command/KivCommandHeader.h"

#include <map>

namespace {

std::map<KivString, KivCommandHeader*>& Headers()
{
    static auto& headers = *new std::map<KivString, KivCommandHeader*>;
    return headers;
}

} // namespace

KivCommandHeader* KivCommandHeader::Declare(const KivString& name)
{
    KivCommandHeader*& header = Headers()[name];
    if (!header) header = new KivCommandHeader(name);
    return header;
}

KivCommandHeader* KivCommandHeader::GetHeaderFromList(const KivString& name, int)
{
    const auto found = Headers().find(name);
    return found == Headers().end() ? nullptr : found->second;
}

void KivCommandHeader::SetAvailable(bool available)
{
    if (available == _available) return;
    _available = available;
    const auto view = _view; // a copy: it may take itself away
    if (view) view(available);
}
