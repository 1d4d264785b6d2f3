#pragma once

#include <cstdint>
#include <string_view>

#include "core/frm_main.h"
#include "core/section_tags.h"
#include "core/session.h"
#include "core/statement_kind.h"

namespace orvanta {

/// The buttons beside a list.
struct ListButtons {
    Button add, edit, remove;
};

/// Where the statements of one kind are collected in one of the sessions.
struct StatementControls {
    TextBox FrmMain::*box;
    ListMember list;
    ListButtons buttons;
};

/// What the main window holds for one statement kind.
struct KindControls {
    Section section;  // of the session files
    std::string_view blankMessage;
    Panel FrmMain::*questionPanel;
    Label FrmMain::*question;
    std::int16_t FrmMain::*narrated;
    PerSession<StatementControls> in;
};

inline constexpr PerKind<KindControls> kindControls{{
    {StatementKind::Strength,
     {.section = Section::Strength,
      .blankMessage = "Please enter strength.",
      .questionPanel = &FrmMain::fraStrength,
      .question = &FrmMain::lblSQuestion,
      .narrated = &FrmMain::narratedStrength,
      .in = {{{Session::Brainstorm,
               {.box = &FrmMain::txtStrength,
                .list = &FrmMain::lvBStrength,
                .buttons = {Button::BSAdd, Button::BSEdit, Button::BSRemove}}},
              {Session::Analyze,
               {.box = &FrmMain::txtAStrength,
                .list = &FrmMain::lvAStrength,
                .buttons = {Button::ASAdd, Button::ASEdit, Button::ASRemove}}}}}}},
    {StatementKind::Weakness,
     {.section = Section::Weakness,
      .blankMessage = "Please enter weakness.",
      .questionPanel = &FrmMain::fraWeakness,
      .question = &FrmMain::lblWQuestion,
      .narrated = &FrmMain::narratedWeakness,
      .in = {{{Session::Brainstorm,
               {.box = &FrmMain::txtWeakness,
                .list = &FrmMain::lvBWeakness,
                .buttons = {Button::BWAdd, Button::BWEdit, Button::BWRemove}}},
              {Session::Analyze,
               {.box = &FrmMain::txtAWeakness,
                .list = &FrmMain::lvAWeakness,
                .buttons = {Button::AWAdd, Button::AWEdit, Button::AWRemove}}}}}}},
    {StatementKind::Opportunity,
     {.section = Section::Opportunity,
      .blankMessage = "Please enter opportunity.",
      .questionPanel = &FrmMain::fraOpportunity,
      .question = &FrmMain::lblOQuestion,
      .narrated = &FrmMain::narratedOpportunity,
      .in = {{{Session::Brainstorm,
               {.box = &FrmMain::txtOpportunity,
                .list = &FrmMain::lvBOpportunity,
                .buttons = {Button::BOAdd, Button::BOEdit, Button::BORemove}}},
              {Session::Analyze,
               {.box = &FrmMain::txtAOpportunity,
                .list = &FrmMain::lvAOpportunity,
                .buttons = {Button::AOAdd, Button::AOEdit, Button::AORemove}}}}}}},
    {StatementKind::Threat,
     {.section = Section::Threats,
      .blankMessage = "Please enter threat.",
      .questionPanel = &FrmMain::fraThreats,
      .question = &FrmMain::lblTQuestion,
      .narrated = &FrmMain::narratedThreat,
      .in = {{{Session::Brainstorm,
               {.box = &FrmMain::txtThreat,
                .list = &FrmMain::lvBThreat,
                .buttons = {Button::BTAdd, Button::BTEdit, Button::BTRemove}}},
              {Session::Analyze,
               {.box = &FrmMain::txtAThreat,
                .list = &FrmMain::lvAThreat,
                .buttons = {Button::ATAdd, Button::ATEdit, Button::ATRemove}}}}}}},
}};

constexpr const StatementControls& controlsOf(Session session, StatementKind kind) {
    return kindControls[kind].in[session];
}

/// The list that a session collects the statements of a kind in.
inline StatementList& listOf(FrmMain& form, Session session, StatementKind kind) {
    return form.*controlsOf(session, kind).list;
}
inline const StatementList& listOf(const FrmMain& form, Session session, StatementKind kind) {
    return form.*controlsOf(session, kind).list;
}

/// The kind of the statements of a section; none for any other section.
constexpr std::optional<StatementKind> kindOfSection(Section section) {
    for (const StatementKind kind : statementKinds)
        if (kindControls[kind].section == section) return kind;
    return std::nullopt;
}

}  // namespace orvanta
