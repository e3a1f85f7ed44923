#include "shell/besttimes.h"

#include "core/Platform.h"
#include "core/PupilProgress.h"
#include "shell/AchievementTable.h"
#include "shell/record/RecordFile.h"
#include "shell/record/Style.h"

#include <array>

namespace nb {

namespace {

// The colour that marks each option column in the key and the table.
const std::uint32_t kColumnColors[] = {rgb(255, 250, 200), rgb(200, 225, 255), rgb(205, 245, 205),
                                       rgb(255, 215, 235)};

constexpr int kTop = 1450;
constexpr int kRowStep = 380;
constexpr int kRowHeight = 340;
constexpr int kCaptionWidth = 2000;
constexpr int kCellStep = 960;
constexpr int kCellWidth = 930;

// The pupil's name as part of a file name: characters a file name cannot hold become "_", and a
// long name is cut (between whole characters) so the file name stays well inside what any file
// system accepts.
std::string fileNamePart(const std::string &text)
{
    constexpr std::size_t kMaxBytes = 40;
    std::string out;
    for (char c : text) {
        const auto b = static_cast<unsigned char>(c);
        out +=
            (b < 32 || std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos) ? '_' : c;
    }
    if (out.size() > kMaxBytes) {
        std::size_t cut = kMaxBytes;
        while (cut > 0 && (static_cast<unsigned char>(out[cut]) & 0xC0) == 0x80)
            --cut; // not inside a UTF-8 sequence
        out.resize(cut);
    }
    // A name ending in blanks or dots makes an awkward file name on some systems.
    while (!out.empty() && (out.back() == ' ' || out.back() == '.'))
        out.pop_back();
    return out;
}

} // namespace

BestTimes::BestTimes(App &app)
    : Screen(app)
{
    setSize(12000, 9000);
    setBackColor(rgb(255, 248, 220));

    // Shows the name; nothing on this screen changes it.
    Control &name = textBox("namebox", "Pupil name", 300, 250, 5400, 600);
    name.font.points = 18;
    name.font.bold = true;
    name.readOnly = true;

    Control &key = label("Label89", "KEY", 6100, 150, 1000, 450);
    key.font.points = 14;
    key.font.bold = true;
    const int keyLefts[] = {7100, 8250, 9400, 6100};
    const int keyTops[] = {150, 150, 150, 650};
    const int keyWidths[] = {1100, 1100, 1100, 2200};
    for (int i = 0; i < 4; ++i) {
        Control &k = label("Label" + std::to_string(90 + i), kOptionColumnNames[i], keyLefts[i],
                           keyTops[i], keyWidths[i], 420);
        k.font.points = 10;
        k.align = Align::Center;
        k.border = true;
        k.backColor = kColumnColors[i];
    }

    int row = 0;
    for (const AchievementRow &r : achievementRows()) {
        const int column = row < kFirstColumnRows ? 0 : 1;
        const int left = 120 + column * 5940;
        const int top = kTop + (column == 0 ? row : row - kFirstColumnRows) * kRowStep;
        Control &c = label("Label" + std::to_string(row + 1), r.caption, left, top, kCaptionWidth,
                           kRowHeight);
        c.font.points = 10;
        c.font.bold = true;
        c.foreColor = rgb(40, 40, 120);
        const int members = r.members();
        for (int m = 0; m < members; ++m) {
            Control &v = label(r.label, "", left + kCaptionWidth + 50 + m * kCellStep, top,
                               kCellWidth, kRowHeight, members > 1 ? m : -1);
            v.font.points = 10;
            v.align = Align::Center;
            v.border = true;
            v.backColor = kColumnColors[m];
            v.fit = TextFit::Shrink; // any value a record holds reads whole
        }
        ++row;
    }

    bigButton(button("Command2", "PRINT", 6100, 8150, 2600, 650), rgb(140, 200, 255));
    bigButton(button("Command1", "EXIT", 9000, 8150, 2600, 650), rgb(255, 160, 160));
    setFocus("Command1");
}

void BestTimes::onOpened()
{
    const PupilProgress &p = progress();
    caption("namebox") = p.PupilName.str();
    for (const AchievementRow &r : achievementRows()) {
        const int members = r.members();
        for (int m = 0; m < members; ++m) {
            const std::string text = achievementText(p.*r.fields[std::size_t(m)], r.level);
            if (!text.empty())
                caption(r.label, members > 1 ? m : -1) = text;
        }
    }
}

void BestTimes::onClick(const std::string &name, int)
{
    if (name == "Command2")
        print();
    else if (name == "Command1")
        closeSelf();
}

void BestTimes::print()
{
    const std::string pupil = fileNamePart(progress().PupilName.str());
    const std::string pdf =
        (record::recordsFolder(platform()) /
         (pupil.empty() ? std::string("Best times.pdf") : "Best times " + pupil + ".pdf"))
            .string();
    const PrintOutcome outcome = platform().printScreen(*this, pdf);
    switch (outcome.kind) {
    case PrintOutcome::Kind::Printed:
        platform().message("The best times have been sent to the printer.");
        break;
    case PrintOutcome::Kind::SavedPdf:
        platform().message("There is no printer, so the best times have been saved as " +
                           (outcome.detail.empty() ? pdf : outcome.detail));
        break;
    case PrintOutcome::Kind::Failed:
        platform().message("The best times could not be printed: " + outcome.detail);
        break;
    }
}

} // namespace nb
