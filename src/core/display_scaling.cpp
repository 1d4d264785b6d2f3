#include "core/display_scaling.h"

#include <array>
#include <utility>

#include "core/frm_edit.h"
#include "core/frm_main.h"
#include "presentation/about_box.h"
#include "presentation/splash.h"
#include "reports/report_dialog.h"

namespace orvanta {

namespace {

constexpr double designTwipsPerPixel = 15;

/// A length less its own value times a share of fifteenths.
Twips reduced(Twips length, double fifteenths) {
    return length - length * (fifteenths / designTwipsPerPixel);
}

void reducePlace(Control& control, double delta) {
    Bounds bounds = control.bounds();
    bounds.left = reduced(bounds.left, delta);
    bounds.top = reduced(bounds.top, delta);
    control.setBounds(bounds);
}

enum class HeightRule { Reduce, Keep };

void reduceBounds(Control& control, double delta, HeightRule heightRule = HeightRule::Reduce) {
    reducePlace(control, delta);
    Bounds bounds = control.bounds();
    bounds.width = reduced(bounds.width, delta);
    if (heightRule == HeightRule::Reduce) bounds.height = reduced(bounds.height, delta);
    control.setBounds(bounds);
}

template <class Kind>
bool lowerFontOf(Control& control, double points) {
    auto* found = dynamic_cast<Kind*>(&control);
    if (!found) return false;
    found->fontSize.value -= points;
    found->changed();
    return true;
}

template <class... Kinds>
void lowerFont(Control& control, double points) {
    (lowerFontOf<Kinds>(control, points) || ...);
}

void fitHolder(Panel& holder, const Image& picture) {
    Bounds bounds = holder.bounds();
    bounds.width = picture.bounds().width;
    bounds.height = picture.bounds().height;
    holder.setBounds(bounds);
}

constexpr std::array<std::pair<Panel FrmMain::*, Button>, 8> fittedHolders{{
    {&FrmMain::picAOAFile, Button::OAFile},
    {&FrmMain::picABack, Button::ABack},
    {&FrmMain::picANext, Button::ANext},
    {&FrmMain::picAQuit, Button::AQuit},
    {&FrmMain::picBOpen, Button::BOpen},
    {&FrmMain::picBBack, Button::BBack},
    {&FrmMain::picBNext, Button::BNext},
    {&FrmMain::picBQuit, Button::BQuit},
}};

}  // namespace

void shrinkForLargeFonts(FrmMain& form, double twipsPerPixel) {
    const double delta = designTwipsPerPixel - twipsPerPixel;
    if (delta <= 0) return;
    const bool commonLargeFonts = delta == 3;
    form.width = reduced(form.width, delta);
    // The vertical factor was tuned by eye and is not the delta.
    form.height = reduced(form.height, commonLargeFonts ? 1.3 : 1.2);
    for (Control* control : form.controls.all()) {
        if (control->kind() == ControlKind::PictureBox) {
            reducePlace(*control, delta);
            continue;
        }
        reduceBounds(*control, delta);
        lowerFont<Label, Option>(*control, commonLargeFonts ? 2 : 3);
        if (control->kind() == ControlKind::Option && commonLargeFonts) {
            Bounds bounds = control->bounds();
            bounds.width = bounds.width + bounds.width * 0.01;
            control->setBounds(bounds);
        }
    }
    for (const auto& [holder, button] : fittedHolders)
        fitHolder(form.*holder, form.buttons[button].image);
    form.sizeChanged();
}

void shrinkForLargeFonts(FrmSplash& form, double twipsPerPixel) {
    const double delta = designTwipsPerPixel - twipsPerPixel;
    if (delta <= 0) return;
    form.width = reduced(form.width, delta);
    form.height = reduced(form.height, delta == 3 ? 4.95 : 2.95);
}

void shrinkForLargeFonts(FrmReportType& form, double twipsPerPixel) {
    const double layoutDelta = designTwipsPerPixel - twipsPerPixel;
    if (layoutDelta <= 0) return;
    form.width = reduced(form.width, layoutDelta);
    form.height = reduced(form.height, layoutDelta);
    for (Control* control : form.controls.all()) {
        const bool combo = control->kind() == ControlKind::ComboBox;
        reduceBounds(*control, layoutDelta, combo ? HeightRule::Keep : HeightRule::Reduce);
        lowerFont<Label, TextBox, PushButton, ComboBox>(*control, 2);
    }
}

void shrinkForLargeFonts(FrmEdit& form, double twipsPerPixel) {
    const double layoutDelta = designTwipsPerPixel - twipsPerPixel;
    if (layoutDelta <= 0) return;
    form.width = reduced(form.width, layoutDelta);  // the height stays, unlike the report dialog's
    for (Control* control : form.controls.all()) {
        reduceBounds(*control, layoutDelta);
        lowerFont<Label>(*control, 2);
    }
}

void shrinkForLargeFonts(FrmAbout& form, double twipsPerPixel) {
    const double layoutDelta = designTwipsPerPixel - twipsPerPixel;
    if (layoutDelta <= 0) return;
    form.width = reduced(form.width, layoutDelta);
    form.height = reduced(form.height, layoutDelta == 3 ? 2.5 : 2);
    for (Control* control : form.controls.all()) {
        reduceBounds(*control, layoutDelta);
        lowerFont<Label, PushButton>(*control, 2);
    }
    const Bounds& title = form.lblTitle.bounds();
    Bounds sign = form.lblR.bounds();
    sign.left = title.left + title.width + Twips{20};
    form.lblR.setBounds(sign);
}

}  // namespace orvanta
