#include "Settings/KivSettingNews.h"

#include "Base/KivDiagnosticScope.h"

#include <utility>
#include <vector>

void KivSettingNews::Say(const std::function<void()>& read)
{
    std::vector<KivDiagnostic> said;
    {
        const KivDiagnosticScope scope(said);
        read();
    }
    std::set<KivUnicodeString> words;
    for (const KivDiagnostic& diagnostic : said) {
        if (words.insert(diagnostic.Message()).second && !_said.contains(diagnostic.Message()))
            KivReport(diagnostic);
    }
    _said = std::move(words);
}
