// SPDX-License-Identifier: MIT
#include "platform/desktop/keyboard_layout.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>
#include <windows.h>

namespace tolvo {

namespace {

/// The characters of the American keyboard, by the scan code of the first key of each row.
struct Row {
    UINT first;
    std::u16string_view characters;
};
constexpr std::array rows{Row{0x10, u"qwertyuiop[]"}, Row{0x1E, u"asdfghjkl;'"}, Row{0x2C, u"zxcvbnm,./"}};

char16_t characterByPlace(UINT scanCode) {
    for (const Row &row : rows) {
        if (scanCode >= row.first && scanCode - row.first < row.characters.size())
            return row.characters[scanCode - row.first];
    }
    return 0;
}

/// What a key types in a layout without modifiers, 0 if it isn't ASCII.
char16_t asciiCharacter(UINT scanCode, HKL layout) {
    constexpr UINT characterBits = 0xFFFF; // above them stands the mark of a dead key
    const UINT key = MapVirtualKeyExW(scanCode, MAPVK_VSC_TO_VK, layout);
    const UINT character = MapVirtualKeyExW(key, MAPVK_VK_TO_CHAR, layout) & characterBits;
    if (character >= u'A' && character <= u'Z')
        return static_cast<char16_t>(character - u'A' + u'a');
    return character > 0x20 && character < 0x7F ? static_cast<char16_t>(character) : u'\0';
}

bool hasLatinLetters(HKL layout) {
    return std::any_of(rows.begin(), rows.end(), [layout](const Row &row) {
        for (UINT place = 0; place < row.characters.size(); ++place) {
            const char16_t character = asciiCharacter(row.first + place, layout);
            if (character >= u'a' && character <= u'z')
                return true;
        }
        return false;
    });
}

std::vector<HKL> usersLayouts() {
    std::vector<HKL> layouts(static_cast<std::size_t>(GetKeyboardLayoutList(0, nullptr)));
    layouts.resize(
        static_cast<std::size_t>(GetKeyboardLayoutList(static_cast<int>(layouts.size()), layouts.data())));
    return layouts;
}

} // namespace

char16_t latinCharacterOfKey(quint32 scanCode, quint32 /*modifiers*/) {
    if (hasLatinLetters(GetKeyboardLayout(0)))
        return 0;
    const std::vector<HKL> layouts = usersLayouts();
    const auto latin = std::find_if(layouts.begin(), layouts.end(), hasLatinLetters);
    return latin == layouts.end() ? characterByPlace(scanCode) : asciiCharacter(scanCode, *latin);
}

int digitOfKey(quint32 scanCode) {
    constexpr quint32 scanCodeOfDigit1 = 2;
    const quint32 place = scanCode - scanCodeOfDigit1;
    return place < 9 ? static_cast<int>(place) + 1 : 0;
}

} // namespace tolvo
