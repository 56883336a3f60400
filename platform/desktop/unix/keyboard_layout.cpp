// SPDX-License-Identifier: MIT
#include "platform/desktop/keyboard_layout.h"

#include <QGuiApplication>
#include <array>
#include <string_view>

#if defined(TOLVO_XKB)
#include <memory>
#include <xkbcommon/xkbcommon-x11.h>
#endif

namespace tolvo {

#if defined(TOLVO_XKB)

namespace {

template <auto release>
struct Release {
    template <class T>
    void operator()(T *object) const {
        release(object);
    }
};
using Context = std::unique_ptr<xkb_context, Release<xkb_context_unref>>;
using Keymap = std::unique_ptr<xkb_keymap, Release<xkb_keymap_unref>>;

/// The current keymap, read at every use, since the user may change it at any time.
Keymap currentKeymap() {
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr)
        return {};
    const Context context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    const int keyboard = xkb_x11_get_core_keyboard_device_id(x11->connection());
    if (!context || keyboard < 0)
        return {};
    return Keymap(xkb_x11_keymap_new_from_device(context.get(), x11->connection(), keyboard,
                                                 XKB_KEYMAP_COMPILE_NO_FLAGS));
}

/// What a key types in a layout without modifiers, 0 if it isn't ASCII. ASCII characters are their own
/// symbols.
char16_t asciiCharacter(xkb_keymap *keymap, xkb_keycode_t key, xkb_layout_index_t layout) {
    const xkb_keysym_t *symbols = nullptr;
    if (layout >= xkb_keymap_num_layouts_for_key(keymap, key) ||
        xkb_keymap_key_get_syms_by_level(keymap, key, layout, 0, &symbols) != 1)
        return 0;
    return symbols[0] > 0x20 && symbols[0] < 0x7F ? static_cast<char16_t>(symbols[0]) : u'\0';
}

bool hasLatinLetters(xkb_keymap *keymap, xkb_layout_index_t layout) {
    for (xkb_keycode_t key = xkb_keymap_min_keycode(keymap); key <= xkb_keymap_max_keycode(keymap); ++key) {
        const char16_t character = asciiCharacter(keymap, key, layout);
        if (character >= u'a' && character <= u'z')
            return true;
    }
    return false;
}

/// The characters of the American keyboard, by the scan code of the first key of each row.
char16_t characterByPlace(quint32 scanCode) {
    struct Row {
        quint32 first;
        std::u16string_view characters;
    };
    static constexpr std::array rows{Row{24, u"qwertyuiop[]"}, Row{38, u"asdfghjkl;'"},
                                     Row{52, u"zxcvbnm,./"}};
    for (const Row &row : rows) {
        if (scanCode >= row.first && scanCode - row.first < row.characters.size())
            return row.characters[scanCode - row.first];
    }
    return 0;
}

} // namespace

char16_t latinCharacterOfKey(quint32 scanCode, quint32 modifiers) {
    const Keymap keymap = currentKeymap();
    if (!keymap)
        return 0;
    const xkb_layout_index_t used = (modifiers >> 13) & 3; // where X11 keeps the number of the layout in use
    if (hasLatinLetters(keymap.get(), used))
        return 0;
    for (xkb_layout_index_t layout = 0; layout < xkb_keymap_num_layouts(keymap.get()); ++layout) {
        if (hasLatinLetters(keymap.get(), layout))
            return asciiCharacter(keymap.get(), scanCode, layout);
    }
    return characterByPlace(scanCode);
}

#else

char16_t latinCharacterOfKey(quint32 /*scanCode*/, quint32 /*modifiers*/) {
    return 0;
}

#endif

int digitOfKey(quint32 scanCode) {
    constexpr quint32 scanCodeOfDigit1 = 10;
    const quint32 place = scanCode - scanCodeOfDigit1;
    return place < 9 ? static_cast<int>(place) + 1 : 0;
}

} // namespace tolvo
