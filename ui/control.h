// ui/control.h - what a screen shows, as plain values.
//
// A command reads and assigns these fields; nobody is notified. After each command the desk of the window side compares
// every field with what was last shown and pushes the differences; before each command it pulls in what the person
// typed, ticked, selected or focused. All texts are Windows-1252 bytes, one byte per character.
#pragma once

#include "ui/colour.h"
#include "ui/keys.h"

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace tallyhoop::ui {

class Screen;

/// What every control has. Constructing one lists it with its screen.
struct Control {
    Control(Screen* owner, std::string_view name);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Screen& screen;         ///< whose control it is
    const std::string name; ///< the widget's objectName; members of arrays are "lblRegion_12"
    bool enabled = true;
    bool visible = true;
    int tabIndex = -1;       ///< place in the tab order; -1 = after those that have one, in order of declaration
    bool tabStop = true;     ///< false = reached by a click only
    std::string spokenName;  ///< what a screen reader says; empty = the widget's own text says enough
    std::string explanation; ///< what this place does, in a sentence for the status line: see Screen; empty = none
    std::string toolTip;     ///< the same in a few words beside the pointer, where the program's users know them

    /// Does what a key means to this kind of control, once the screen has left the key alone.
    /// @returns true when the key was dealt with and must not reach the widget
    virtual bool keyPressed(const KeyPress& press);

    /// @returns what a screen reader adds to the name: the explanation, or the tool tip when there is none
    virtual std::string spokenExplanation() const;
};

/// A line of text the person cannot change. The text is data: never markup, `&` never a mnemonic.
struct Label : Control {
    Label(Screen* owner, std::string_view name, std::string text = {});

    std::string text;
    std::optional<Colour> colour;     ///< nothing = the palette's text colour
    std::optional<Colour> background; ///< nothing = what lies below shows through
};

/// Text the person can edit unless it is locked. A one-line box never holds a line break; a multi-line one holds CR LF.
struct TextBox : Control {
    TextBox(Screen* owner, std::string_view name, std::function<void()> edited = {});

    std::string text;
    bool locked = false;
    bool multiLine = false;
    int maxLength = 0;                ///< most characters a person can type; 0 = no limit; never cuts a text set here
    bool selectedByClick = false;     ///< a click selects the whole text, so that typing replaces it; one line only
    int selectionStart = 0;           ///< caret, or first selected character, 0..text.size()
    int selectionLength = 0;          ///< selected characters; 0 = a caret only
    std::optional<Colour> background; ///< nothing = the palette's window colour for boxes
    std::function<void()> edited;     ///< called after the person changed the text
};

/// A push button.
struct Command : Control {
    Command(Screen* owner, std::string_view name, std::string caption, std::function<void()> action = {});

    std::string caption;    ///< ours, not data: an `&` marks the mnemonic
    char mnemonic = 0;      ///< the letter that Alt presses where the caption marks none; 0 = none, or marked there
    bool isDefault = false; ///< Enter presses it
    std::function<void()> action;

    /// Does what a press by the person does: nothing while disabled or hidden. The screen then shows its new state.
    void click();
};

/// A box that is ticked or not.
struct CheckBox : Control {
    CheckBox(Screen* owner, std::string_view name, std::string caption = {});

    std::string caption; ///< an `&` marks the mnemonic
    bool ticked = false;
    std::function<void()> changed;
};

/// One of several choices of which at most one is selected; see selectOption().
struct OptionButton : Control {
    OptionButton(Screen* owner, std::string_view name, std::string caption = {});

    std::string caption; ///< an `&` marks the mnemonic
    bool selected = false;
    std::function<void()> changed;
};

/// Rows of text of which at most one is selected.
struct ListBox : Control {
    ListBox(Screen* owner, std::string_view name);

    std::vector<std::string> rows;
    std::optional<int> selected;      ///< row index; nothing = no row
    bool fixedPitch = false;          ///< rows are laid out in columns
    std::optional<Colour> background; ///< nothing = the palette's
    std::function<void()> chosen;     ///< called after the person selected a row
    std::function<void()> pressed;    ///< called after a left mouse press anywhere on it, also where no row is
    std::function<void()> doubleClicked;
    std::string emptyNote; ///< how things stand, shown in it as long as there are no rows; empty = nothing is

    /// The first navigation key chooses the first row.
    bool keyPressed(const KeyPress& press) override;

    /// With the note first as long as there are no rows: a screen reader reads the list only.
    std::string spokenExplanation() const override;

    /// @returns the selected row's text, empty when none is selected
    std::string selectedText() const;
};

enum class Alignment { Left, Right, Centre };

/// What a column of boxes holds, and what a screen reader says of a box.
inline constexpr const char* kTicked = "ticked";
inline constexpr const char* kNotTicked = "not ticked";

/// A column of a grid.
struct GridColumn {
    std::string heading;
    Alignment alignment = Alignment::Left;
    int width = 0;      ///< characters
    bool grows = false; ///< takes its share of the room that is left over; where no column does, the last one
    bool ticks = false; ///< its cells are boxes: kTicked, kNotTicked, or empty for no box

    friend bool operator==(const GridColumn&, const GridColumn&) = default;
};

/// A cell of a grid's data rows.
struct GridCell {
    std::size_t row = 0;
    std::size_t column = 0;

    friend bool operator==(const GridCell&, const GridCell&) = default;
};

/// By which column the rows of a grid are sorted.
struct GridSort {
    std::size_t column = 0;
    bool ascending = true; ///< from A to Z, from the smallest to the largest

    friend bool operator==(const GridSort&, const GridSort&) = default;
};

/// A bar in each cell of a column, beside the text.
struct GridBars {
    std::size_t column = 0;
    std::vector<double> parts; ///< of the longest bar, 0..1, for each row
};

/// A table with one heading row. Moving a column moves `columns` and the cells of every row alike, so that cell [r][c]
/// is always in the c-th column from the left.
struct Grid : Control {
    Grid(Screen* owner, std::string_view name);

    std::vector<GridColumn> columns;
    std::vector<std::vector<std::string>> rows; ///< data rows, each with columns.size() cells
    std::optional<std::size_t> headingPressed;  ///< the heading that is being dragged, if any
    std::optional<GridCell> current;            ///< where the keyboard is; nothing = nowhere yet
    bool wholeRows = false;                     ///< the row of the current cell is marked, not that cell alone
    std::optional<GridSort> sorted;             ///< shown in the heading; nothing = the order has another reason
    std::vector<bool> muted;                    ///< for each row, whether its text is paler; those left out are not
    std::optional<GridBars> bars;
    std::string emptyNote; ///< how things stand, shown in it as long as there are no rows; empty = nothing is
    unsigned revision = 0; ///< increase after changing rows, columns or their look: tables are compared by this
    std::function<void(std::size_t row)> rowReached; ///< called after the person moved to another row, by key or mouse
    std::function<void(std::size_t row, std::size_t column)> cellPressed;
    std::function<void(std::size_t column)> columnPressed;                 ///< a press on a heading
    std::function<void(std::optional<std::size_t> column)> columnReleased; ///< its release; nothing = outside the grid

    /// What the mouse does, with the keyboard: Space and Enter press the current cell, Ctrl+Shift+Left and
    /// Ctrl+Shift+Right move its column.
    bool keyPressed(const KeyPress& press) override;

    /// With the note first as long as there are no rows: a screen reader reads the table only.
    std::string spokenExplanation() const override;

private:
    bool moveColumn(GridCell from, Key key);
};

/// The pictures that the entries of menus have.
enum class MenuIcon {
    None,
    About,
    Assist,
    Demo,
    Exit,
    Help,
    New,
    Open,
    People,
    Preview,
    Print,
    Redo,
    Reset,
    Results,
    Save,
    Score,
    Seeds,
    Setup,
    Undo,
};

/// An entry of a menu, or a menu when it has children.
struct MenuEntry : Control {
    MenuEntry(Screen* owner, std::string_view name, std::string caption = {}, std::function<void()> action = {},
              std::string shortcut = {});

    std::string caption;  ///< an `&` marks the mnemonic
    std::string shortcut; ///< such as "Ctrl+N"; empty = none
    MenuIcon icon = MenuIcon::None;
    std::function<void()> action;
    std::vector<MenuEntry*> children; ///< nullptr = a separator

    /// Does what choosing it does: nothing while it is disabled or hidden. The screen then shows its new state.
    void click();
};

/// Controls that repeat: {this, "lblRegion"} names lblRegion_0, lblRegion_1, ...
template <class Kind, std::size_t N>
class ControlArray
{
public:
    ControlArray(Screen* owner, std::string_view name)
    {
        for (std::size_t i = 0; i < N; ++i)
            m_members[i] = std::make_unique<Kind>(owner, std::string{name} + "_" + std::to_string(i));
    }

    static constexpr std::size_t size() { return N; }
    Kind& operator[](std::size_t index) { return *m_members.at(index); }
    const Kind& operator[](std::size_t index) const { return *m_members.at(index); }

    /// The same for an enum whose values are the places in the array.
    template <class Id>
    requires std::is_enum_v<Id> Kind& operator[](Id id) { return *m_members.at(static_cast<std::size_t>(id)); }
    template <class Id>
    requires std::is_enum_v<Id>
    const Kind& operator[](Id id) const { return *m_members.at(static_cast<std::size_t>(id)); }

    /// @returns the place of this control in the array, as an enum if one is asked for; nothing when it is not a member
    template <class Id = std::size_t>
    std::optional<Id> indexOf(const Control& control) const
    {
        for (std::size_t i = 0; i < N; ++i)
            if (m_members[i].get() == &control)
                return static_cast<Id>(i);
        return std::nullopt;
    }

private:
    std::array<std::unique_ptr<Kind>, N> m_members;
};

/// Selects one option of a group and clears the others.
template <std::size_t N>
void selectOption(ControlArray<OptionButton, N>& group, std::size_t index)
{
    for (std::size_t i = 0; i < N; ++i)
        group[i].selected = i == index;
}

} // namespace tallyhoop::ui
