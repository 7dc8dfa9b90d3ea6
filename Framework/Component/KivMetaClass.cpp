#include "Component/KivMetaClass.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace {

// Never destroyed: classes register while libraries are loaded and are asked until the process ends.
std::map<std::string_view, KivMetaClass*>& Classes()
{
    static auto& classes = *new std::map<std::string_view, KivMetaClass*>;
    return classes;
}

} // namespace

KivMetaClass* KivMetaClass::Retrieve(const KivClassFacts& facts)
{
    KivMetaClass*& found = Classes()[facts.name];
    if (!found) found = new KivMetaClass(facts);
    return found;
}

KivMetaClass* KivMetaClass::Find(const char* name)
{
    const auto found = Classes().find(name ? name : "");
    return found == Classes().end() ? nullptr : found->second;
}

KivMetaClass* KivMetaClass::Find(const IID& id)
{
    const auto found = std::find_if(Classes().begin(), Classes().end(),
                                    [&](const auto& known) { return known.second->Id() == id; });
    return found == Classes().end() ? nullptr : found->second;
}

int KivMetaClass::IsAKindOf(const char* name) const
{
    for (const KivMetaClass* meta = this; meta; meta = meta->Base()) {
        if (std::string_view(meta->Name()) == name) return 1;
    }
    return 0;
}

void KivMetaClass::DeclareExtensionOf(KivMetaClass* component)
{
    if (!component) return;
    auto& extensions = component->_extensions;
    if (std::find(extensions.begin(), extensions.end(), this) == extensions.end()) extensions.push_back(this);
}

KivMetaClass* KivMetaClass::MakeTieRecord(const KivMetaClass* interface)
{
    return new KivMetaClass({.name = interface->Name(),
                             .kind = KivClassKind::Tie,
                             .base = interface,
                             .framework = interface->Framework()});
}
