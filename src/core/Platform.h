#pragma once
// Everything a screen needs from the world outside its own controls. The window layer provides
// the real one; tests provide a scripted one.
#include <chrono>
#include <string>
#include <vector>

namespace nb {

class Screen;

enum class MsgIcon { None, Critical, Question, Exclamation, Information };

// Replies of a Yes/No box.
constexpr int kYes = 6;
constexpr int kNo = 7;
// A Yes/No box closed or escaped without either answer.
constexpr int kCancel = 2;

struct PrintOutcome
{
    enum class Kind { Printed, SavedPdf, Failed };
    Kind kind = Kind::Failed;
    std::string detail; // SavedPdf: the file written; Failed: what went wrong
};

class Platform
{
public:
    virtual ~Platform() = default;

    // A short sound for a right answer (or the bell). Returns at once; silent while sound is off.
    virtual void beep() = 0;
    // Whether beep() makes a sound; the choice is kept between runs, outside the pupil's record.
    virtual bool soundOn() = 0;
    virtual void setSoundOn(bool on) = 0;
    // An OK box. An empty title means the program's own name. Details (a technical reason) are
    // kept behind a button of the box.
    virtual void message(const std::string &text, const std::string &title = {},
                         MsgIcon icon = MsgIcon::None, const std::string &details = {}) = 0;
    // A Yes/No box; returns kYes (6) or kNo (7), or kCancel (2) when it was closed or escaped
    // without either answer.
    virtual int askYesNo(const std::string &text, const std::string &title = {}) = 0;
    // A text-input box; Cancel gives empty text.
    virtual std::string inputBox(const std::string &prompt, const std::string &title = {},
                                 const std::string &defaultText = {}) = 0;
    // A uniform draw in [0, 1).
    virtual double random() = 0;
    virtual std::chrono::system_clock::time_point now() = 0;

    // The user's documents folder (records go in a folder inside it).
    virtual std::string documentsFolder() = 0;
    // The file-system roots a user recognises: the root, the home folder, mounted media.
    virtual std::vector<std::string> drives() = 0;
    // Print an image of the screen on the default printer; with no printer, save it as a PDF at
    // pdfPath instead.
    virtual PrintOutcome printScreen(const Screen &screen, const std::string &pdfPath) = 0;
};

} // namespace nb
