#pragma once

#include "core/frm_main.h"
#include "core/per_enum.h"

namespace orvanta {

/// The two sessions that a run of the program can hold; at most one is on screen.
enum class Session { Brainstorm, Analyze, Count };

template <class T>
using PerSession = PerEnum<Session, T>;

struct SessionControls {
    char letter;  // of journal tags and of the codes of the Edit Statement dialog
    Panel FrmMain::*panel;
    bool FrmMain::*editFlag;
};

inline constexpr PerSession<SessionControls> sessionControls{{
    {Session::Brainstorm,
     {.letter = 'B', .panel = &FrmMain::fraBrainstorm, .editFlag = &FrmMain::editFlag}},
    {Session::Analyze,
     {.letter = 'A', .panel = &FrmMain::fraAnalyze, .editFlag = &FrmMain::editAFlag}},
}};

}  // namespace orvanta
