#pragma once

#include "Base/KivDiagnostic.h"
#include "Settings/KivSettingFile.h"

#include <algorithm>
#include <map>
#include <string>

// What holds of the reader and writer of settings files whatever the bytes are. Answers what does not, or
// null.
inline const char* BrokenProperty(std::string_view bytes)
{
    const KivSettingFile file{std::string(bytes)};
    if (file.Text() != bytes) return "the text is kept as it is";

    // Every line lies in the text, in order, and means the same alone.
    std::size_t end = 0;
    std::map<std::string, const KivSettingLine*> last;
    for (const KivSettingLine& line : file.Lines()) {
        if (line.begin < end || line.end <= line.begin || line.end > bytes.size())
            return "lines are in order";
        end = line.end;
        if ((line.kind == KivSettingLine::Kind::Attribute) == (line.reason != nullptr))
            return "a line is used or has a reason why not";
        if (line.isPattern ? !KivIsSettingPattern(line.key) || KivHasValue(line.value)
                           : !line.key.empty() && !KivIsSettingKey(line.key))
            return "a key is a key";
        if (!line.reason && !KivIsSound(line.value)) return "values are finite";
        if (!line.reason) last[std::string(line.key)] = &line;
    }

    // Saving without a change adds a seal that fits and nothing else, and every value that was read is
    // written so that it reads the same.
    KivSettingFile sealed(*file.With({}).text);
    if (sealed.SealState() != KivSettingSeal::State::Fits) return "what is written is sealed";
    if (*sealed.With({}).text != sealed.Text()) return "no change, no other byte";
    if (!std::equal(file.Lines().begin(), file.Lines().end(), sealed.Lines().begin(), sealed.Lines().end(),
                    [&](const KivSettingLine& was, const KivSettingLine& is) {
                        return KivWithoutLineEnd(file.Text().substr(was.begin, was.end - was.begin)) ==
                               KivWithoutLineEnd(sealed.Text().substr(is.begin, is.end - is.begin));
                    }))
        return "every line is there";
    std::vector<KivSettingChange> changes;
    for (const auto& [key, line] : last)
        changes.push_back(
            {KivString(key), {.value = line->value, .initial = line->initial, .lock = line->lock}});
    const KivSettingFile saved(*file.With(changes).text);
    std::map<std::string, int> count;
    for (const KivSettingLine& line : saved.Lines()) {
        const auto was = last.find(std::string(line.key));
        if (line.reason || was == last.end()) continue;
        ++count[was->first];
        if (line.lock != was->second->lock || !KivSameValue(line.value, was->second->value))
            return "what is written reads the same";
    }
    for (const auto& [key, line] : last) {
        const bool saysNothing = !line->lock && !KivHasValue(line->value);
        if (count[key] != (saysNothing ? 0 : 1)) return "a changed key stands there once";
    }
    if (*saved.With(changes).text != saved.Text()) return "saving twice is saving once";

    // A file that became another one by a save knows what it would read.
    changes.push_back({"KivAddedAtTheEnd", {.value = 1}});
    KivSettingEdit edit = sealed.With(changes);
    sealed.Prepare(edit);
    sealed.Become(std::move(edit));
    const KivSettingFile readAnew{std::string(sealed.Text())};
    if (!std::equal(sealed.Lines().begin(), sealed.Lines().end(), readAnew.Lines().begin(),
                    readAnew.Lines().end(), [](const KivSettingLine& is, const KivSettingLine& read) {
                        return is.key == read.key && is.hash == read.hash && is.kind == read.kind &&
                               is.lock == read.lock && is.begin == read.begin && is.end == read.end &&
                               is.number == read.number;
                    }))
        return "what was saved is what is read";
    changes.pop_back();

    // Withdrawing all of it leaves the other lines as they were.
    for (KivSettingChange& change : changes) change.entry = {};
    const KivSettingFile bare(*file.With(changes).text);
    for (const KivSettingLine& line : bare.Lines())
        if (!line.reason) return "what was withdrawn is gone";
    return nullptr;
}
