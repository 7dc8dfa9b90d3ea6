#pragma once

#ifndef Q_MOC_RUN // moc cannot read the comparison header of the standard library behind it
#include "Base/KivDiagnosticScope.h"
#endif

#include <QObject>
#include <vector>

// Everything that the framework has to say to the person, from the making of this object to its end.
class DraftingDiagnostics : public QObject {
    Q_OBJECT

public:
    // Whether each diagnostic goes to standard error as well.
    explicit DraftingDiagnostics(bool echoes);

    const std::vector<KivDiagnostic>& All() const { return _all; }

signals:
    // One more was said; it is the last of All.
    void Said();

private:
    void Take(const KivDiagnostic& diagnostic);

    // Of a process that runs for days; older ones are forgotten.
    static constexpr std::size_t kMost = 500;

    std::vector<KivDiagnostic> _all;
    bool _echoes;
    KivDiagnosticScope _scope;
};
