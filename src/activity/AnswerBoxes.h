#pragma once
// The answer boxes of a screen, keyed by name and array index (`Text5`, `answers(21)`,
// `answerbox(3)`), so that every screen that takes one digit or number per box applies the same
// key filter and clears its boxes the same way.
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nb {

class Screen;

class AnswerBoxes
{
public:
    void add(std::string name, int index = -1) { boxes_.emplace_back(std::move(name), index); }
    bool contains(std::string_view name, int index = -1) const;
    // Empties every box.
    void clear(Screen &screen) const;
    const std::vector<std::pair<std::string, int>> &all() const { return boxes_; }

private:
    std::vector<std::pair<std::string, int>> boxes_;
};

} // namespace nb
