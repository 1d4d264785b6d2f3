#include "core/buttons.h"

namespace orvanta {

namespace {

constexpr std::string_view openBrainstormToolTip =
    "Open a file saved from a previous Brainstorm session";

constexpr ButtonFace small(std::string_view baseName, std::string_view caption,
                           std::string_view toolTip = {}) {
    return {
        .baseName = baseName, .size = ButtonSize::Small, .caption = caption, .toolTip = toolTip};
}

constexpr ButtonFace large(std::string_view baseName, std::string_view caption,
                           std::string_view toolTip = {}) {
    return {
        .baseName = baseName, .size = ButtonSize::Large, .caption = caption, .toolTip = toolTip};
}

// Those beside each statement list.
constexpr ButtonFace add(std::string_view baseName) {
    return small(baseName, "Add", "Add this statement to the list below.");
}
constexpr ButtonFace edit(std::string_view baseName) {
    return small(baseName, "Edit", "Edit the currently highlighted statement.");
}
constexpr ButtonFace remove(std::string_view baseName) {
    return small(baseName, "Remove", "Remove the currently highlighted statement.");
}

constexpr ButtonFace quit(std::string_view baseName, ButtonSize size) {
    return {.baseName = baseName, .size = size, .caption = "Quit", .toolTip = "End this session."};
}

constexpr PerButton<ButtonFace> faces{{
    {Button::ABack, small("ABack", backCaption)},
    {Button::About, large("About", "About")},
    {Button::AFAdd, small("AFAdd", "Add", "Browse to open a previously saved Brainstorm file.")},
    {Button::AFRemove, small("AFRemove", "Remove", "Remove highlighted file from the list.")},
    {Button::Analyze, large("Analyze", "Analyze",
                            "Once you\x92ve completed your brainstorming, use this section to "
                            "begin analyzing your ideas.")},
    {Button::ANext, small("ANext", nextCaption)},
    {Button::AOAdd, add("AOAdd")},
    {Button::AOEdit, edit("AOEdit")},
    {Button::AORemove, remove("AORemove")},
    {Button::AQuit, quit("AQuit", ButtonSize::Small)},
    {Button::ASAdd, add("ASAdd")},
    {Button::ASEdit, edit("ASEdit")},
    {Button::ASRemove, remove("ASRemove")},
    {Button::ATAdd, add("ATAdd")},
    {Button::ATEdit, edit("ATEdit")},
    {Button::ATRemove, remove("ATRemove")},
    {Button::AWAdd, add("AWAdd")},
    {Button::AWEdit, edit("AWEdit")},
    {Button::AWRemove, remove("AWRemove")},
    {Button::BBack, small("BBack", backCaption)},
    {Button::BNext, small("BNext", nextCaption)},
    {Button::BOAdd, add("BOAdd")},
    {Button::BOEdit, edit("BOEdit")},
    {Button::BOpen, large("BOpen", "Open Brainstorm File...", openBrainstormToolTip)},
    {Button::BORemove, remove("BORemove")},
    {Button::BQuit, quit("BQuit", ButtonSize::Small)},
    {Button::Brainstorm,
     large("Brainstorm", "Brainstorm", "Begin brainstorming and capturing your ideas.")},
    {Button::BSAdd, add("BSAdd")},
    {Button::BSEdit, edit("BSEdit")},
    {Button::BSRemove, remove("BSRemove")},
    {Button::BTAdd, add("BTAdd")},
    {Button::BTEdit, edit("BTEdit")},
    {Button::BTRemove, remove("BTRemove")},
    {Button::BWAdd, add("BWAdd")},
    {Button::BWEdit, edit("BWEdit")},
    {Button::BWRemove, remove("BWRemove")},
    {Button::OAFile,
     large("OAFile", "Open Analyze File...", "Open a file saved from a previous Analyze session.")},
    {Button::Overview, large("Overview", "Overview",
                             "Click here to see an overview presentation that will instruct you "
                             "on the SWOT analysis process.")},
    // The tool tip is that of the button above it on the screen, word for word.
    {Button::Print, large("Print", "Print Questions...", openBrainstormToolTip)},
    {Button::Quit, quit("Quit", ButtonSize::Large)},
    {Button::Report, large("Report", "Reports", "Generate a SWOT analysis report.")},
}};

}  // namespace

const ButtonFace& faceOf(Button button) { return faces[button]; }

SkinnedButton::SkinnedButton(ControlSet& owner, std::string_view baseName)
    : image(owner, "imgBtn" + std::string(baseName)),
      label(owner, "lblBtn" + std::string(baseName)),
      baseName(baseName) {}

void SkinnedButton::setToolTip(const std::string& toolTip) {
    label.setToolTip(toolTip);
    image.setToolTip(toolTip);
}

SkinnedButtons::SkinnedButtons(ControlSet& owner) {
    for (const Button button : allOf<Button>) {
        const ButtonFace& face = faces[button];
        auto& made = m_buttons[button] = std::make_unique<SkinnedButton>(owner, face.baseName);
        made->label.setCaption(std::string(face.caption));
        made->setToolTip(std::string(face.toolTip));
        made->image.setArt(face.size == ButtonSize::Large ? Art::LargeNormal : Art::SmallNormal);
    }
}

}  // namespace orvanta
