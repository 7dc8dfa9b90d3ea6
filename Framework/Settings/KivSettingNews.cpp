#include "Settings/KivSettingNews.h"

#include "Base/KivDiagnostic.h"

#include <utility>
#include <vector>

void KivSettingNews::Say(const std::function<void()>& read)
{
    std::vector<KivDiagnostic> said;
    KivDiagnosticSink sink =
        KivSetDiagnosticSink([&said](const KivDiagnostic& diagnostic) { said.push_back(diagnostic); });
    read();
    KivSetDiagnosticSink(std::move(sink));
    std::set<KivUnicodeString> words;
    for (const KivDiagnostic& diagnostic : said) {
        if (words.insert(diagnostic.Words()).second && !_said.contains(diagnostic.Words()))
            KivReport(diagnostic);
    }
    _said = std::move(words);
}
