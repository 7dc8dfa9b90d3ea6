#include "Common/IconStore.h"

#include "Base/KivDiagnostic.h"
#include "Base/KivTextCatalogue.h"
#include "Common/IconEngine.h"
#include "Common/NativeText.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace {

constexpr qsizetype kPicturesKept = 500; // a window that is dragged between screens asks for many sizes

void Complain(const KivString& name, const char* what)
{
    KivReport({.severity = KivDiagnostic::Severity::Note,
               .text = FromQt(WindowText(what)),
               .file = "icons/" + KivUnicodeString(name) + ".svg"});
}

} // namespace

IconStore& IconStore::Shared()
{
    static auto& store = *new IconStore;
    return store;
}

QIcon IconStore::Icon(const KivString& name)
{
    if (Drawing(name).isEmpty()) return {};
    return IconEngine::Icon([this, name](QPainter& painter, const QRectF& rectangle, const QColor& ink) {
        const qreal ratio = painter.device()->devicePixelRatio();
        painter.drawPixmap(rectangle.toRect(), Picture(name, (rectangle.size() * ratio).toSize(), ink));
    });
}

QPixmap IconStore::Picture(const KivString& name, const QSize& pixels, const QColor& ink)
{
    const QByteArray& drawing = Drawing(name);
    if (drawing.isEmpty() || pixels.isEmpty()) return {};
    const QString key = QString("%1 %2 %3 %4")
                            .arg(QString::fromUtf8(name.ConvertToChar()))
                            .arg(pixels.width())
                            .arg(pixels.height())
                            .arg(ink.rgba());
    if (const auto found = _pictures.constFind(key); found != _pictures.constEnd()) return *found;
    if (_pictures.size() >= kPicturesKept) _pictures.clear();

    QByteArray colored = drawing;
    QSvgRenderer renderer(colored.replace("currentColor", ink.name().toUtf8()));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPixmap picture(pixels);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setOpacity(ink.alphaF());
    renderer.render(&painter, QRectF(QPointF(), pixels));
    painter.end();
    _pictures.insert(key, picture);
    return picture;
}

QSize IconStore::Size(const KivString& name)
{
    const QByteArray& drawing = Drawing(name);
    return drawing.isEmpty() ? QSize() : QSvgRenderer(drawing).defaultSize();
}

const QByteArray& IconStore::Drawing(const KivString& name)
{
    const QString key = QString::fromUtf8(name.ConvertToChar());
    if (const auto found = _drawings.constFind(key); found != _drawings.constEnd()) return *found;
    QByteArray& drawing = _drawings[key];
    if (name.IsEmpty()) return drawing;

    const KivUnicodeString path = KivTextCatalogue::FindResource("icons/" + KivUnicodeString(name) + ".svg");
    QFile file(ToQt(path));
    if (path.IsEmpty() || !file.open(QIODevice::ReadOnly)) {
        Complain(name, "IconMissing");
    } else if (QByteArray content = file.readAll(); QSvgRenderer(content).isValid()) {
        drawing = std::move(content);
    } else {
        Complain(name, "IconDamaged");
    }
    return drawing;
}
