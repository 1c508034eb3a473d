#pragma once

class QWidget;

namespace varnoth {

/// Fills a form's texts in the current language, and gives its buttons their pictures; run it when a form is
/// made and again after a language switch.
///
/// Where the string ids (decimal text) stand:
/// - title of the form: dynamic property "Tag" of the form; numbers up to 10 are no ids, the title then stays
/// - labels, buttons, group boxes, docks: property "Tag" of the control
/// - menus and actions: property "Tag"; an action without one is designed with the id as its text, which
/// moves
///   into the "Tag"
/// - tabs: property "Tag" of the page; in a bare QTabBar the tab's data
/// - column headings: the heading's Qt::UserRole; a heading without one is designed with the id as its text
/// - tool tips of tabs, actions and controls (not of labels): the tool tip itself; the id moves into the
/// property
///   "ToolTipTag"
///
/// From then on a label of the form shows its text letter by letter, whatever tags stand in it, unless its
/// format was designed.
///
/// What carries no id, or an id without a text, keeps what it shows. Forms inside the form (child windows,
/// dialogs) are left to their own call. Never fails, and writes only what changes.
void LokalisiereForm(QWidget& form);

} // namespace varnoth
