#include "values/FoldedText.h"

#include "values/Utf8.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tarnwick {
namespace {

/// The letters from `first` on, each as the one it is folded to; '-' where one is something else.
struct LatinBlock {
    char32_t first;
    std::string_view letters;
};

constexpr std::array<LatinBlock, 3> latinBlocks{{
    {0x00C0, "aaaaaa-ceeeeiiii-nooooo-ouuuuy--aaaaaa-ceeeeiiii-nooooo-ouuuuy-y"
             "aaaaaaccccccccddddeeeeeeeeeegggggggghhhhiiiiiiiiii--jjkk-lllllll"
             "lllnnnnnn---oooooo--rrrrrrssssssssttttttuuuuuuuuuuuuwwyyyzzzzzzs"},
    {0x0180, "b----------------------i--l-----oo-------------uu----zz---------"
             "-------------aaiioouuuuuuuuuu-aaaa--ggggkkoooo--j---gg--nnaa--oo"
             "aaaaeeeeiiiioooorrrruuuusstt--hh------aaeeooooooooyy------------"},
    {0x1E00, "aabbbbbbccddddddddddeeeeeeeeeeffgghhhhhhhhhhiiiikkkkkkllllllllmm"
             "mmmmnnnnnnnnoooooooopppprrrrrrrrssssssssssttttttttuuuuuuuuuuvvvv"
             "wwwwwwwwwwxxxxyyzzzzzzhtwy------aaaaaaaaaaaaaaaaaaaaaaaaeeeeeeee"
             "eeeeeeeeiiiioooooooooooooooooooooooouuuuuuuuuuuuuuyyyyyyyy------"},
}};

struct Expansion {
    char32_t letter;
    std::string_view text;
};

constexpr std::array<Expansion, 8> expansions{{
    {0x00C6, "ae"},
    {0x00DF, "ss"},
    {0x00E6, "ae"},
    {0x0132, "ij"},
    {0x0133, "ij"},
    {0x0152, "oe"},
    {0x0153, "oe"},
    {0x1E9E, "ss"},
}};

/// Capital letters, every `step`-th from `first` to `last`, and how far behind them the small ones are.
struct Capitals {
    char32_t first;
    char32_t last;
    char32_t step;
    char32_t distance;
};

constexpr std::array<Capitals, 18> capitals{{
    {0x00D0, 0x00DE, 14, 0x20},
    {0x014A, 0x014A, 1, 1},
    {0x0391, 0x03A1, 1, 0x20},
    {0x03A3, 0x03A9, 1, 0x20},
    {0x03D8, 0x03EE, 2, 1},
    {0x0400, 0x040F, 1, 0x50},
    {0x0410, 0x042F, 1, 0x20},
    {0x0460, 0x0480, 2, 1},
    {0x048A, 0x04BE, 2, 1},
    {0x04C0, 0x04C0, 1, 0x0F},
    {0x04C3, 0x04CD, 2, 1},
    {0x04D4, 0x04D4, 1, 1},
    {0x04D8, 0x04D8, 1, 1},
    {0x04E0, 0x04E8, 8, 1},
    {0x04F6, 0x04F6, 1, 1},
    {0x04FA, 0x052E, 2, 1},
    {0x0531, 0x0556, 1, 0x30},
    {0xFF21, 0xFF3A, 1, 0x20},
}};

/// Letters with a mark that the alphabet counts as part of them, and the letter without it.
struct Marked {
    char32_t letter;
    char32_t bare;
};

constexpr std::array<Marked, 74> marked{
    {{0x0386, 0x03B1}, {0x0388, 0x03B5}, {0x0389, 0x03B7}, {0x038A, 0x03B9}, {0x038C, 0x03BF},
        {0x038E, 0x03C5}, {0x038F, 0x03C9}, {0x0390, 0x03B9}, {0x03AA, 0x03B9}, {0x03AB, 0x03C5},
        {0x03AC, 0x03B1}, {0x03AD, 0x03B5}, {0x03AE, 0x03B7}, {0x03AF, 0x03B9}, {0x03B0, 0x03C5},
        {0x03C2, 0x03C3}, {0x03CA, 0x03B9}, {0x03CB, 0x03C5}, {0x03CC, 0x03BF}, {0x03CD, 0x03C5},
        {0x03CE, 0x03C9}, {0x0400, 0x0435}, {0x0401, 0x0435}, {0x0403, 0x0433}, {0x0407, 0x0456},
        {0x040C, 0x043A}, {0x040D, 0x0438}, {0x040E, 0x0443}, {0x0419, 0x0438}, {0x0439, 0x0438},
        {0x0450, 0x0435}, {0x0451, 0x0435}, {0x0453, 0x0433}, {0x0457, 0x0456}, {0x045C, 0x043A},
        {0x045D, 0x0438}, {0x045E, 0x0443}, {0x0476, 0x0475}, {0x0477, 0x0475}, {0x04C1, 0x0436},
        {0x04C2, 0x0436}, {0x04D0, 0x0430}, {0x04D1, 0x0430}, {0x04D2, 0x0430}, {0x04D3, 0x0430},
        {0x04D6, 0x0435}, {0x04D7, 0x0435}, {0x04DA, 0x04D9}, {0x04DB, 0x04D9}, {0x04DC, 0x0436},
        {0x04DD, 0x0436}, {0x04DE, 0x0437}, {0x04DF, 0x0437}, {0x04E2, 0x0438}, {0x04E3, 0x0438},
        {0x04E4, 0x0438}, {0x04E5, 0x0438}, {0x04E6, 0x043E}, {0x04E7, 0x043E}, {0x04EA, 0x04E9},
        {0x04EB, 0x04E9}, {0x04EC, 0x044D}, {0x04ED, 0x044D}, {0x04EE, 0x0443}, {0x04EF, 0x0443},
        {0x04F0, 0x0443}, {0x04F1, 0x0443}, {0x04F2, 0x0443}, {0x04F3, 0x0443}, {0x04F4, 0x0447},
        {0x04F5, 0x0447}, {0x04F8, 0x044B}, {0x04F9, 0x044B}, {0x1E9B, U's'}}};

bool isWithin(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

/// Whether it is a mark of the letter before it, of the kinds that Latin, Greek and Cyrillic letters have.
bool isMark(char32_t character) {
    return isWithin(character, 0x0300, 0x036F) || isWithin(character, 0x1AB0, 0x1AFF) ||
           isWithin(character, 0x1DC0, 0x1DFF) || isWithin(character, 0x20D0, 0x20FF) ||
           isWithin(character, 0xFE20, 0xFE2F);
}

/// Of the two kana marks: the voiced sound's, and the half voiced one's.
constexpr char32_t voicedMark = 0x3099;
constexpr char32_t halfVoicedMark = 0x309A;

/// The kana with its mark in one; nothing when there is none such.
std::optional<char32_t> voiced(char32_t kana, char32_t mark) {
    constexpr char32_t katakanaOffset = 0x60;
    const bool isKatakana = isWithin(kana, 0x30A0, 0x30FF);
    const auto hiragana = isKatakana ? kana - katakanaOffset : kana;
    const bool isHaRow = isWithin(hiragana, 0x306F, 0x307B) && hiragana % 3 == 0x306F % 3;
    if (mark == halfVoicedMark) {
        return isHaRow ? std::optional(kana + 2) : std::nullopt;
    }
    const bool isOdd = isWithin(hiragana, 0x304B, 0x3061) && hiragana % 2 == 1;
    const bool isEven = isWithin(hiragana, 0x3064, 0x3068) && hiragana % 2 == 0;
    if (isHaRow || isOdd || isEven || hiragana == 0x309D) {
        return kana + 1;
    }
    if (hiragana == 0x3046) {
        return kana + (0x3094 - 0x3046);
    }
    // Four that hiragana does not have.
    return isWithin(kana, 0x30EF, 0x30F2) ? std::optional(kana + 8) : std::nullopt;
}

/// A Korean syllable of a leading consonant and a vowel, or of such a syllable and a trailing consonant.
std::optional<char32_t> syllable(char32_t before, char32_t part) {
    constexpr char32_t leading = 0x1100;
    constexpr char32_t vowel = 0x1161;
    constexpr char32_t noTrailing = 0x11A7;
    constexpr char32_t syllables = 0xAC00;
    constexpr char32_t vowels = 21;
    constexpr char32_t trailings = 28;
    if (isWithin(before, leading, leading + 18) && isWithin(part, vowel, vowel + vowels - 1)) {
        return syllables + ((before - leading) * vowels + (part - vowel)) * trailings;
    }
    if (isWithin(before, syllables, 0xD7A3) && (before - syllables) % trailings == 0 &&
        isWithin(part, noTrailing + 1, noTrailing + trailings - 1)) {
        return before + (part - noTrailing);
    }
    return std::nullopt;
}

/// What the two characters are in one; nothing when they stay two.
std::optional<char32_t> together(char32_t before, char32_t character) {
    if (character == voicedMark || character == halfVoicedMark) {
        return voiced(before, character);
    }
    return isWithin(character, 0x1161, 0x11C2) ? syllable(before, character) : std::nullopt;
}

char32_t inLowerCase(char32_t character) {
    if (character < 0x80) {
        return isWithin(character, U'A', U'Z') ? character + (U'a' - U'A') : character;
    }
    for (const auto& range : capitals) {
        if (isWithin(character, range.first, range.last) && (character - range.first) % range.step == 0) {
            return character + range.distance;
        }
    }
    return character;
}

/// The letter without mark and in lower case; where it is none, itself.
char32_t foldedLetter(char32_t character) {
    for (const auto& block : latinBlocks) {
        const auto index = static_cast<std::size_t>(character - block.first);
        if (character >= block.first && index < block.letters.size() && block.letters[index] != '-') {
            return static_cast<unsigned char>(block.letters[index]);
        }
    }
    const auto* found = std::lower_bound(marked.begin(), marked.end(), character,
        [](const Marked& entry, char32_t wanted) { return entry.letter < wanted; });
    return found != marked.end() && found->letter == character ? found->bare : inLowerCase(character);
}

std::string_view expansionOf(char32_t character) {
    const auto* found = std::find_if(expansions.begin(), expansions.end(),
        [character](const Expansion& entry) { return entry.letter == character; });
    return found == expansions.end() ? std::string_view() : found->text;
}

/// Beyond these only kana, Korean and wide letters are changed.
constexpr char32_t lastOfAlphabets = 0x1EFF;

} // namespace

std::string folded(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    // The last character of the result, and where it begins.
    char32_t last = 0;
    std::size_t lastStart = 0;
    const auto add = [&](char32_t character) {
        last = character;
        lastStart = result.size();
        appendUtf8(result, character);
    };
    while (!text.empty()) {
        const auto character = takeCharacter(text);
        if (!character) {
            result += text.front();
            text.remove_prefix(1);
            last = 0;
            continue;
        }
        if (isMark(*character)) {
            continue;
        }
        if (const auto one = together(last, *character)) {
            result.resize(lastStart);
            add(*one);
        } else if (const auto expansion = expansionOf(*character); !expansion.empty()) {
            result += expansion;
            last = 0;
        } else {
            add(*character <= lastOfAlphabets ? foldedLetter(*character) : inLowerCase(*character));
        }
    }
    return result;
}

} // namespace tarnwick
