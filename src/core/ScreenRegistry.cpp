#include "core/ScreenRegistry.h"

namespace nb {

void ScreenRegistry::add(std::string name, std::string title, Factory make)
{
    for (Entry &e : entries_) {
        if (e.name == name) {
            e.title = std::move(title);
            e.make = std::move(make);
            return;
        }
    }
    entries_.push_back({std::move(name), std::move(title), std::move(make)});
}

const ScreenRegistry::Entry *ScreenRegistry::find(std::string_view name) const
{
    for (const Entry &e : entries_)
        if (e.name == name)
            return &e;
    return nullptr;
}

} // namespace nb
