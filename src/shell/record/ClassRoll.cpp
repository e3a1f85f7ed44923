#include "shell/record/ClassRoll.h"

#include "core/PupilProgress.h"
#include "shell/AchievementTable.h"
#include "shell/record/RecordFile.h"

#include <algorithm>
#include <cctype>
#include <system_error>

namespace nb::record {

namespace fs = std::filesystem;

namespace {

bool isRecordName(const fs::path &p)
{
    std::string ext = p.extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(),
                   [](unsigned char c) { return char(std::toupper(c)); });
    return ext == ".DAT";
}

std::string lowered(std::string s)
{
    std::transform(s.begin(), s.end(), s.begin(),
                   [](unsigned char c) { return char(std::tolower(c)); });
    return s;
}

void csvField(std::string &out, const std::string &field)
{
    if (field.find_first_of(",\"\r\n") == std::string::npos) {
        out += field;
        return;
    }
    out += '"';
    for (char c : field) {
        if (c == '"')
            out += '"';
        out += c;
    }
    out += '"';
}

} // namespace

std::optional<std::vector<fs::path>> recordFiles(const fs::path &folder, std::string &problem)
{
    std::error_code ec;
    fs::directory_iterator it(folder, ec);
    if (ec) {
        problem = folder.string() + " cannot be read (" + ec.message() + ")";
        return std::nullopt;
    }
    std::vector<fs::path> files;
    for (const fs::directory_entry &e : it) {
        std::error_code typeError;
        if (isRecordName(e.path()) && !e.is_directory(typeError))
            files.push_back(e.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::optional<PupilRow> readPupil(const fs::path &file, std::string &problem)
{
    const ReadOutcome read = readRecordFile(file);
    if (!read.values) {
        problem = read.problem;
        return std::nullopt;
    }
    PupilProgress progress;
    store(*read.values, progress);
    PupilRow row;
    row.name = progress.PupilName.str();
    row.file = file.filename().string();
    for (const AchievementSlot &slot : achievementSlots())
        row.cells.push_back(achievementText(progress.*slot.field, slot.level));
    return row;
}

std::optional<ClassRoll> readClassFolder(const fs::path &folder, std::string &problem,
                                         const std::function<void(int, int)> &progress)
{
    const auto files = recordFiles(folder, problem);
    if (!files)
        return std::nullopt;
    ClassRoll roll;
    roll.folder = folder;
    const int total = int(files->size());
    int done = 0;
    for (const fs::path &file : *files) {
        std::string why;
        if (auto row = readPupil(file, why))
            roll.pupils.push_back(std::move(*row));
        else
            roll.bad.push_back({file.filename().string(), why});
        if (progress)
            progress(++done, total);
    }
    markUsedSlots(roll);
    return roll;
}

void markUsedSlots(ClassRoll &roll)
{
    roll.used.assign(achievementSlots().size(), false);
    for (const PupilRow &row : roll.pupils)
        for (std::size_t i = 0; i < row.cells.size() && i < roll.used.size(); ++i)
            if (!row.cells[i].empty())
                roll.used[i] = true;
}

std::vector<int> byName(const ClassRoll &roll)
{
    std::vector<int> order(roll.pupils.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = int(i);
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
        const PupilRow &x = roll.pupils[std::size_t(a)];
        const PupilRow &y = roll.pupils[std::size_t(b)];
        const std::string lx = lowered(x.name), ly = lowered(y.name);
        return lx != ly ? lx < ly : x.file < y.file;
    });
    return order;
}

std::string classCsv(const ClassRoll &roll, const std::vector<int> &rowOrder)
{
    const auto &slots = achievementSlots();
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < slots.size(); ++i)
        if (i < roll.used.size() && roll.used[i])
            columns.push_back(i);
    std::string out = "\xEF\xBB\xBF"; // lets spreadsheets read the names as UTF-8
    out += "Pupil,File";
    for (std::size_t c : columns) {
        out += ',';
        csvField(out, slots[c].heading);
    }
    out += "\r\n";
    for (int r : rowOrder) {
        const PupilRow &row = roll.pupils.at(std::size_t(r));
        csvField(out, row.name);
        out += ',';
        csvField(out, row.file);
        for (std::size_t c : columns) {
            out += ',';
            csvField(out, c < row.cells.size() ? row.cells[c] : std::string());
        }
        out += "\r\n";
    }
    return out;
}

int csvCommand(const std::string &folder, std::ostream &out, std::ostream &err)
{
    std::string problem;
    const auto roll = readClassFolder(folder, problem);
    if (!roll) {
        err << "numbrook-class: " << problem << "\n";
        return 1;
    }
    for (const BadFile &b : roll->bad)
        err << "numbrook-class: " << b.file << " skipped: " << b.reason << "\n";
    out << classCsv(*roll, byName(*roll));
    out.flush();
    return out ? 0 : 1;
}

} // namespace nb::record
