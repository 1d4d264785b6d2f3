#pragma once

namespace orvanta {

struct FrmMain;
struct FrmSplash;
struct FrmReportType;
struct FrmEdit;
struct FrmAbout;

// Layouts are drawn for 15 twips to a pixel. Large-font displays have fewer, so that the same
// twips take more pixels; each form then shrinks in a way of its own. With 15 or more nothing
// happens.

void shrinkForLargeFonts(FrmMain& form, double twipsPerPixel);
void shrinkForLargeFonts(FrmSplash& form, double twipsPerPixel);
void shrinkForLargeFonts(FrmReportType& form, double twipsPerPixel);
void shrinkForLargeFonts(FrmEdit& form, double twipsPerPixel);
void shrinkForLargeFonts(FrmAbout& form, double twipsPerPixel);

}  // namespace orvanta
