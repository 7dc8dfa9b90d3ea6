#pragma once

#include "Base/KivString.h"
#include "Base/KivUnicodeString.h"

#include <initializer_list>
#include <set>
#include <string>
#include <unordered_map>

// The texts of one file name in the user's language, then in English: lines `key = "text"`, UTF-8, in
// share/kiv/<module>/texts/<language>/<catalogue>.texts of any module. Loaded once and kept.
//
// Lines that start with # and empty ones are comments. In a text, \n is a new line, \" a quotation mark and
// \\ a backslash. A line that is none of these is reported and passed over; a catalogue without a file is
// reported once and knows no text.
class KivTextCatalogue {
public:
    static const KivTextCatalogue& Open(const KivString& name);

    // The framework's own catalogue, and a text of it with the values in the places of its %1 to %9. When the
    // text is missing: its key and the values, so that nothing of what there is to say is lost.
    static constexpr const char* kFramework = "KivFramework";
    static KivUnicodeString FrameworkText(const char* key,
                                          std::initializer_list<KivUnicodeString> values = {});

    // A text with the values in the places of its %1 to %9, in one pass: a value may hold what looks like a
    // place.
    static KivUnicodeString Fill(const KivUnicodeString& text,
                                 std::initializer_list<KivUnicodeString> values);

    // Not a language: the English texts, marked at both ends and longer by 40 %, as a translation may make
    // them. Shows at a glance what is cut off and what no catalogue holds.
    static constexpr const char* kPseudoLanguage = "Pseudo";

    // Not a language either: the same, laid out from right to left.
    static constexpr const char* kMirroredLanguage = "Mirrored";
    // Whether the user's language is written from right to left: its framework texts say so
    // ("Language.Direction" is "RightToLeft").
    static bool IsRightToLeft();

    // The user's language, a directory name such as "English"; catalogues opened before it is set keep
    // theirs.
    static void SetLanguage(const KivString& language);
    // The languages that some module has texts in, and the pseudo language; sorted.
    static std::set<std::string> KnownLanguages();

    // Where the modules' resources lie: share/kiv of the installation until a test names another directory.
    static void SetResourceRoot(const KivUnicodeString& directory);
    // The file of a resource below any module's directory ("icons/I_Grid.svg"); empty when no module has it.
    static KivUnicodeString FindResource(const KivUnicodeString& relative);

    // The text of a key, or the key itself: what is shown is never empty because a text is missing.
    KivUnicodeString Text(const KivString& key) const;
    // The text of a key; empty when it is missing. For what may be left out, as a help or an icon.
    KivUnicodeString Find(const KivString& key) const;

    // For tests: every key that the files hold.
    const std::unordered_map<std::string, KivUnicodeString>& Texts() const { return _texts; }

private:
    void Load(const KivString& language, const KivString& name);
    void LoadFile(const KivUnicodeString& file);

    std::unordered_map<std::string, KivUnicodeString> _texts;
};
