#include "Parameter/KivTypedText.h"

#include <algorithm>
#include <iterator>

namespace {

struct Replacement {
    std::string_view typed;
    std::string_view plain;
};

// A fraction has a space on either side, so that digits beside it are no part of it.
constexpr Replacement kReplacements[] = {
    {"\t", " "},         {"\n", " "},         {"\r", " "},         {"\u00A0", " "},     {"\u2002", " "},
    {"\u2003", " "},     {"\u2007", " "},     {"\u2009", " "},     {"\u200A", " "},     {"\u202F", " "},
    {"\u2018", "'"},     {"\u2019", "'"},     {"\u02B9", "'"},     {"\u2032", "'"},     {"\u201C", "\""},
    {"\u201D", "\""},    {"\u02BA", "\""},    {"\u2033", "\""},    {"\u2010", "-"},     {"\u2011", "-"},
    {"\u2012", "-"},     {"\u2013", "-"},     {"\u2212", "-"},     {"\u2044", "/"},     {"\u2215", "/"},
    {"\u00BA", "°"},     {"\u00BC", " 1/4 "}, {"\u00BD", " 1/2 "}, {"\u00BE", " 3/4 "}, {"\u215B", " 1/8 "},
    {"\u215C", " 3/8 "}, {"\u215D", " 5/8 "}, {"\u215E", " 7/8 "},
};

} // namespace

std::string KivPlainText(std::string_view typed)
{
    std::string plain;
    while (!typed.empty()) {
        const auto* const found =
            std::find_if(std::begin(kReplacements), std::end(kReplacements),
                         [typed](const Replacement& r) { return typed.starts_with(r.typed); });
        const bool known = found != std::end(kReplacements);
        plain += known ? found->plain : typed.substr(0, 1);
        typed.remove_prefix(known ? found->typed.size() : 1);
    }
    return plain;
}
