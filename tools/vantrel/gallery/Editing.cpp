// Text editing: carets and selections that a session leaves after clicks,
// key moves and a text installed without fitting, each click marked.
#include "Edit.h"
#include "gallery/Sheet.h"

#include <memory>

using namespace Vantrel;

namespace VantrelTool {

namespace {

std::unique_ptr<TextCallout> editedCallout(std::string const &text, Rect const &box, double size,
                                           TextHorizontalAlignment alignment = Center) {
    Settings s;
    s.text = text;
    s.box = box;
    s.fontSize = size;
    s.color = kInk;
    s.align = alignment;
    return std::make_unique<TextCallout>(box, textProperties(s), textAttributes(s));
}

// A point on a cluster's ink, from the top-left of the box: the fraction
// across it, at its middle height. Clusters count in visual order.
Point onCluster(TextCallout const &callout, size_t cluster, double fraction) {
    CrossPlatformDrawingContextWithBuiltInBitmap scratch(1, 1);
    DrawOutputMetaData metadata;
    scratch.DrawTextW(callout.textCalloutProperties(), callout.textAttributeList(), &metadata);
    if (cluster >= metadata.clusterRects.size())
        return Point();
    Rect const r = metadata.clusterRects[cluster];
    return Point(r.Left() + r.Width() * fraction, r.Center().y);
}

std::string at(Point const &p) { return std::to_string(int(p.x)) + "," + std::to_string(int(p.y)); }

// The callout after the operations: its box, the caret or selection, the
// text, and a ring on each click.
Tile editTile(std::string const &label, std::shared_ptr<TextCallout> callout, std::vector<std::string> operations) {
    return {label, [=](CrossPlatformDrawingContext &c) {
                TextEditingSession session(callout.get(), nullptr);
                std::vector<Point> clicks;
                Point const origin = callout->trackingRect().topLeft;
                for (std::string const &op : operations) {
                    runEditingOperation(session, op);
                    if (op.rfind("click:", 0) == 0 || op.rfind("drag:", 0) == 0) {
                        size_t comma = op.find(',');
                        size_t colon = op.find(':');
                        clicks.push_back(origin +
                                         Point(std::stod(op.substr(colon + 1)), std::stod(op.substr(comma + 1))));
                    }
                }
                TextCallout const shown(callout->bodyRect(), callout->textCalloutProperties(),
                                        callout->textAttributeList());
                c.Stroke(Color(0.75f, 0.75f, 0.8f), 1, "solid",
                         Polygon(shown.textCalloutProperties().textRect.Expanded(0.5)));
                shown.drawSelectionIntoContext(&c, session.selection(), Color(0.2f, 0.5f, 1, 0.35f), kRed);
                drawCallout(c, shown);
                for (Point const &p : clicks) {
                    c.StrokeEllipse(kGreen, 1.5, "solid", Rect(p - Point(3, 3), p + Point(3, 3)));
                }
            }};
}

} // namespace

void addEditingSections(std::vector<Section> &all) {
    Rect const box(-80, -40, 80, 40);
    std::shared_ptr<TextCallout> wave = editedCallout("WAVE", box, 40);
    std::shared_ptr<TextCallout> wrapped = editedCallout("Edit the text in place", box, 20, Left);
    std::shared_ptr<TextCallout> hebrew = editedCallout("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D", box, 36);
    std::shared_ptr<TextCallout> grown = editedCallout("Grown to fit", Rect(-30, -10, 30, 10), 18);
    grown->textCalloutProperties().wordWrap = false;
    std::shared_ptr<TextCallout> words = editedCallout("select a word", box, 22);
    Point const waveLeft = onCluster(*wave, 1, 0.25), waveRight = onCluster(*wave, 1, 0.75);
    Point const hebrewRight = onCluster(*hebrew, 1, 0.75);
    all.push_back({"Editing: carets after clicks (green), selections after moves",
                   {editTile("click on the left half of A", wave, {"click:" + at(waveLeft)}),
                    editTile("click on the right half of A", wave, {"click:" + at(waveRight)}),
                    editTile("click past a wrapped line", wrapped, {"click:155,12"}),
                    editTile("right-to-left: right half", hebrew, {"click:" + at(hebrewRight)}),
                    editTile("shift+word-right", words, {"click:" + at(onCluster(*words, 7, 0.1)), "shift+word-right"}),
                    editTile("selection across a wrap", wrapped, {"click:40,12", "shift+down"}),
                    editTile("box grown to its text", grown, {"grow", "text-end"})}});
}

} // namespace VantrelTool
