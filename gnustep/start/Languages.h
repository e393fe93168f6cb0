#pragma once

@class NSArray;
@class NSString;

/// Puts the user's languages before the program looks for any text: `AppleLanguages` as on macOS (also as an
/// argument, `-AppleLanguages '("zh-Hans")'`), else what LANGUAGE, LC_ALL, LC_MESSAGES or LANG names.
/// `NSLanguages`, GNUstep's own default, comes before both where it is set. Nothing is written.
void TNUseLanguagesOfUser();

/// The languages in the order in which tables are looked for, codes first, for codes as macOS or POSIX
/// writes them: "zh_TW.UTF-8" gives "zh-Hant", "TraditionalChinese". English is always the last.
NSArray *TNLanguagesForCodes(NSArray *codes);

/// Whether the first of these languages is written in Chinese characters.
bool TNLanguageUsesHanCharacters(NSArray *languages);
/// The font, without its weight, whose forms of Chinese characters the first of these languages uses.
NSString *TNHanFontForLanguages(NSArray *languages);
