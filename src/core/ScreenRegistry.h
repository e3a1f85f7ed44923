#pragma once
// Which screens exist: each name maps to its window title and a way to make it.
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace nb {

class App;
class Screen;

class ScreenRegistry
{
public:
    using Factory = std::function<std::unique_ptr<Screen>(App &)>;
    struct Entry
    {
        std::string name;
        std::string title;
        Factory make;
    };

    void add(std::string name, std::string title, Factory make);
    template<class T> void add(std::string name, std::string title)
    {
        add(std::move(name), std::move(title), [](App &a) { return std::make_unique<T>(a); });
    }

    const Entry *find(std::string_view name) const;
    bool has(std::string_view name) const { return find(name) != nullptr; }
    const std::vector<Entry> &entries() const { return entries_; }

private:
    std::vector<Entry> entries_;
};

} // namespace nb
