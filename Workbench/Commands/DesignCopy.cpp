#include "Workbench/Commands/DesignCopy.h"

#include "Workbench/Design/FileNames.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

namespace Zorvane::Workbench {

namespace {

/** New identifiers for old ones, each once. */
class NewIds
{
public:
    void renew(GUIdentifier& id)
    {
        if (id.isNull())
            return;
        GUIdentifier& known = m_ids[id];
        if (known.isNull())
            known = GUIdentifier::create();
        id = known;
    }

    void renew(Tool& tool)
    {
        renew(tool.id);
        renew(tool.geometry);
    }
    void renew(Operation& operation)
    {
        renew(operation.id);
        for (Tool& tool : operation.tools)
            renew(tool);
    }
    void renew(Blank& blank)
    {
        renew(blank.id);
        renew(blank.material);
        renew(blank.geometry);
    }
    void renew(Part& part)
    {
        renew(part.id);
        renew(part.geometry);
        renew(part.material);
    }
    void renew(Material& material)
    {
        renew(material.id);
        renew(material.file);
    }
    void renew(FileReference& file) { renew(file.id); }

    template <typename Piece>
    void renew(std::vector<Piece>& pieces)
    {
        for (Piece& piece : pieces)
            renew(piece);
    }

    const Successors& all() const { return m_ids; }

private:
    Successors m_ids;
};

} // namespace

Design DesignCopy::of(const Design& design, const QString& file, Successors* successors)
{
    Design copy = design;
    copy.file = file;
    NewIds ids;
    ids.renew(copy.id);
    if (copy.blank)
        ids.renew(*copy.blank);
    ids.renew(copy.parts);
    ids.renew(copy.operations);
    ids.renew(copy.materials);
    ids.renew(copy.files);
    if (successors != nullptr)
        *successors = ids.all();
    return copy;
}

QString DesignCopy::typableName(const QString& designFile)
{
    return QFileInfo(designFile).fileName().replace(QLatin1Char('"'), QLatin1String("''"));
}

QString DesignCopy::proposedFile(const QString& designFile)
{
    const QDir folder = QFileInfo(designFile).dir();
    const QString base = QFileInfo(typableName(designFile)).completeBaseName();
    const QString ending = QStringLiteral(".dsg");
    for (int number = 1;; ++number) {
        const auto named = [number, &ending](const QString& stem) -> QString {
            return (number == 1 ? tr("%1 copy").arg(stem)
                                : tr("%1 copy %2").arg(stem, QString::number(number))) +
                   ending;
        };
        const QString rest = named(QString());
        const QString stem = FileNames::fitted(base, rest).chopped(rest.size());
        const QString file = folder.filePath(named(stem));
        if (!QFileInfo::exists(file))
            return file;
    }
}

} // namespace Zorvane::Workbench
