// screens/money/prize_boxes.h - the boxes for the fee, what is kept back and the prizes, and the choice for ties.
#pragma once

#include "pool/prizes/prize_table.h"
#include "ui/screen.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tallyhoop {

inline constexpr std::size_t kPrizeBoxes = 10; ///< prizes for further places stay in the file as they are
inline constexpr std::size_t kTieRules = 3;

/// What in the boxes cannot be used.
struct BoxFault {
    ui::TextBox* box = nullptr; ///< where it is
    std::string text;           ///< why, in a sentence
};

class PrizeBoxes
{
public:
    explicit PrizeBoxes(ui::Screen* owner);

    ui::Label lblEntryFee;
    ui::TextBox txtEntryFee;
    ui::Label lblKeptBack;
    ui::TextBox txtKeptBack;
    ui::ControlArray<ui::Label, kPrizeBoxes> lblPlace;
    ui::ControlArray<ui::TextBox, kPrizeBoxes> txtPrize;
    ui::ControlArray<ui::Label, kPrizeBoxes> lblAmount; ///< what the place wins
    ui::Label lblMorePrizes;
    ui::Label lblTies;
    ui::ControlArray<ui::OptionButton, kTieRules> optTies;

protected:
    void fill(const PrizeTable& table);

    /// Reads the boxes; one that cannot be used counts as empty.
    /// @returns the first of those
    std::optional<BoxFault> read(PrizeTable& table);

    /// @returns what is in all boxes, and which rule is chosen: for comparison
    std::vector<std::string> entered() const;

    /// Shows what the places win; nothing = it cannot be said.
    void showAmounts(const std::optional<Purse>& purse);

private:
    void explain();
    std::optional<BoxFault> readPlaces(PrizeTable& table);
    ui::TextBox* lastShare();

    std::vector<Prize> m_further; ///< prizes for which there are no boxes
};

} // namespace tallyhoop
