#include "FileDialogs/FileDialogConfiguration.h"
#include "TreeModel/ModelItem.h"

#include <QtCore/QFile>

#include <iostream>

int main()
{
    static_assert(__cplusplus > 201703L);
    const Zorvane::GenericTreeViewModelHandling::ModelItem part(Zorvane::Identifier(7), "Part");
    const bool hasIcons = QFile::exists(QStringLiteral(":/Icons/Ribbon/view_overview.svg"));
    const bool hasTexts = QFile::exists(QStringLiteral(":/Zorvane/Translations/zorvane_de.qm"));
    std::cout << part.getName() << ' ' << hasIcons << ' ' << hasTexts << std::endl;
}
