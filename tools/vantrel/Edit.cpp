#include "Edit.h"

#include "Arguments.h"
#include "Catalogue.h"
#include "Picture.h"

#include <cairo.h>
#include <functional>
#include <iomanip>
#include <iostream>
#include <sstream>

using namespace Vantrel;

namespace VantrelTool {

namespace {

using Step = void (TextEditingSession::*)();

// A key: its plain move and the move with shift held.
struct Key {
    char const *name;
    Step plain, shifted;
};

std::vector<Key> const kKeys = {
    {"left", &TextEditingSession::moveSelectionLeft, &TextEditingSession::moveSelectionLeftAndModifySelection},
    {"right", &TextEditingSession::moveSelectionRight, &TextEditingSession::moveSelectionRightAndModifySelection},
    {"up", &TextEditingSession::moveSelectionUp, &TextEditingSession::moveSelectionUpAndModifySelection},
    {"down", &TextEditingSession::moveSelectionDown, &TextEditingSession::moveSelectionDownAndModifySelection},
    {"word-left", &TextEditingSession::moveSelectionWordLeft,
     &TextEditingSession::moveSelectionWordLeftAndModifySelection},
    {"word-right", &TextEditingSession::moveSelectionWordRight,
     &TextEditingSession::moveSelectionWordRightAndModifySelection},
    {"home", &TextEditingSession::moveSelectionToBeginningOfLine,
     &TextEditingSession::moveSelectionToBeginningOfLineAndModifySelection},
    {"end", &TextEditingSession::moveSelectionToEndOfLine,
     &TextEditingSession::moveSelectionToEndOfLineAndModifySelection},
    {"text-start", &TextEditingSession::moveSelectionToBeginning,
     &TextEditingSession::moveSelectionToBeginningAndModifySelection},
    {"text-end", &TextEditingSession::moveSelectionToEnd, &TextEditingSession::moveSelectionToEndAndModifySelection},
};

char const *const kOperationsHelp = R"(Operations of --keys, separated by blanks:
  left, right, up, down, word-left, word-right, home, end (of the line),
  text-start, text-end     the caret moves; with shift+ in front, such as
                           shift+word-right, the selection's end moves
  click:X,Y, drag:X,Y      mouse down and drag, from the top-left of the
                           callout's tracking rect
  set:S,E                  the selection, in characters
  select-all
  align:left|center|right, valign:top|middle|bottom, spacing:N
                           the text's alignments and line spacing
  grow                     the text installed again without fitting: the box
                           grows to it)";

// Tells what the session told since the last operation.
struct PrintingObserver : TextEditingSessionObserver {
    std::vector<std::string> calls;
    void textChanged() override { calls.push_back("textChanged"); }
    void selectionChanged() override { calls.push_back("selectionChanged"); }
    bool isRightToLeftLanguage(std::string const &text) override { return UTF8StringUtil::isRightToLeftLanguage(text); }
};

struct EditRequest {
    Settings settings;
    std::string keys, output;
    bool flipHorizontally = false, flipVertically = false;
};

EditRequest parse(std::vector<std::string> const &args) {
    EditRequest r;
    r.settings.text = "Hello wide world";
    r.settings.box = Rect(-100, -30, 100, 30);
    r.settings.color = kInk;
    readOptions(args, "edit", r.settings, {"--flip-horizontally", "--flip-vertically"},
                [&](std::string const &a, std::string const &v) {
                    if (a == "--flip-horizontally" || a == "--flip-vertically")
                        (a == "--flip-horizontally" ? r.flipHorizontally : r.flipVertically) = true;
                    else if (a == "-o" || a == "--output")
                        r.output = v;
                    else if (a == "--keys")
                        r.keys = v;
                    else
                        return false;
                    return true;
                });
    if (r.output.empty())
        throw UsageError("edit needs -o FILE.png");
    return r;
}

std::string describe(Range const &r) {
    std::ostringstream out;
    out << r;
    return out.str();
}

int writeEditPicture(TextCallout const &edited, Range const &selection, std::string const &path) {
    // A callout of the text as it now stands: the edited one keeps the bounds it measured first.
    TextCallout callout(edited.bodyRect(), edited.textCalloutProperties(), edited.textAttributeList());
    Rect const area = callout.textCalloutProperties().textRect.Expanded(12);
    auto picturePointer = pictureOver(area, "the box");
    CrossPlatformDrawingContext &picture = *picturePointer;
    picture.Fill(Color(1, 1, 1), Polygon(Rect(area.ToContainingRectInt())));
    picture.Stroke(Color(0.75f, 0.75f, 0.8f), 1, "solid",
                   Polygon(callout.textCalloutProperties().textRect.Expanded(0.5)));
    callout.drawSelectionIntoContext(&picture, selection, Color(0.2f, 0.5f, 1.0f, 0.35f), kRed);
    callout.drawIntoContext(&picture, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    return writePng(picture, path);
}

} // namespace

void runEditingOperation(TextEditingSession &session, std::string const &operation) {
    size_t const colon = operation.find(':');
    std::string const word = operation.substr(0, colon),
                      value = colon == std::string::npos ? "" : operation.substr(colon + 1);
    bool const shift = word.rfind("shift+", 0) == 0;
    std::string const key = shift ? word.substr(6) : word;
    for (Key const &k : kKeys)
        if (key == k.name && colon == std::string::npos) {
            (session.*(shift ? k.shifted : k.plain))();
            return;
        }
    if (shift || (colon == std::string::npos) != (word == "select-all" || word == "grow"))
        throw UsageError("unknown operation '" + operation + "' for --keys");
    if (word == "select-all") {
        session.selectAll();
    } else if (word == "grow") {
        if (TextCallout const *callout = session.textCallout())
            session.updateTextAndAttributes(callout->textCalloutProperties().text, callout->textAttributeList(), false);
    } else if (word == "click" || word == "drag") {
        std::vector<double> p = numbers(operation, value, 2);
        if (word == "click")
            session.handleMouseDown(Point(p[0], p[1]));
        else
            session.handleMouseDrag(Point(p[0], p[1]));
    } else if (word == "set") {
        std::vector<double> s = numbers(operation, value, 2);
        session.setSelection(Range(int(s[0]), int(s[1])));
    } else if (word == "align") {
        std::string a = oneOf(operation, value, {"left", "center", "right"});
        session.setTextHorizontalAlignment(a == "left" ? Left : a == "center" ? Center : Right);
    } else if (word == "valign") {
        std::string a = oneOf(operation, value, {"top", "middle", "bottom"});
        session.setTextVerticalAlignment(a == "top" ? Top : a == "middle" ? Middle : Bottom);
    } else if (word == "spacing") {
        session.setVerticalSpace(numbers(operation, value, 1)[0]);
    } else {
        throw UsageError("unknown operation '" + operation + "' for --keys");
    }
}

std::string editUsage() {
    return std::string("usage: vantrel edit [OPTIONS] -o FILE.png\n\n"
                       "Replays editing operations on a text callout, prints the selection and what the\n"
                       "session told its observer after each, and draws the text with the last caret or\n"
                       "selection.\n\n"
                       "Options:\n"
                       "  --text TEXT               the text, UTF-8 (default 'Hello wide world')\n"
                       "  --box L,T,R,B             the text box (default -100,-30,100,30)\n"
                       "  --font-size N             size in points (default 24)\n"
                       "  --font FAMILY, --color COLOR, --align A\n"
                       "                            font (default DejaVu Sans), colour and alignment\n"
                       "  --flip-horizontally, --flip-vertically\n"
                       "                            the text drawn mirrored; clicks follow it\n"
                       "  --keys \"OP OP ...\"        the operations, in order\n"
                       "  -o, --output FILE.png     where to write the picture (required)\n\n") +
           kOperationsHelp + "\n";
}

int runEdit(std::vector<std::string> const &args) {
    for (std::string const &a : args)
        if (a == "-h" || a == "--help") {
            std::cout << editUsage();
            return 0;
        }
    try {
        EditRequest r = parse(args);
        TextCalloutProperties properties = textProperties(r.settings);
        properties.flipHorizontally = r.flipHorizontally;
        properties.flipVertically = r.flipVertically;
        TextCallout callout(r.settings.box, properties, textAttributes(r.settings));
        PrintingObserver observer;
        TextEditingSession session(&callout, &observer);
        std::istringstream keys(r.keys);
        std::string operation;
        while (keys >> operation) {
            runEditingOperation(session, operation);
            std::string told;
            for (std::string const &call : observer.calls)
                told += (told.empty() ? "" : ", ") + call;
            observer.calls.clear();
            std::cout << std::left << std::setw(22) << operation << " selection " << std::setw(10)
                      << describe(session.selection()) << (told.empty() ? "" : " told " + told) << '\n';
        }
        return writeEditPicture(callout, session.selection(), r.output);
    } catch (UsageError const &e) {
        std::cerr << "vantrel: " << e.what() << " (see 'vantrel edit --help')\n";
        return 2;
    }
}

} // namespace VantrelTool
