#include "Host/Identifiers/IDCombiner.h"
#include "TreeModel/ModelItem.h"

#include <iostream>
#include <memory>

int main()
{
    using Zorvane::GenericTreeViewModelHandling::ModelItem;
    ModelItem part(Zorvane::Identifier(7), "Part");
    part.addChildren({std::make_shared<ModelItem>(Zorvane::Identifier(8), "Operation")});
    std::cout << part.getName() << ' ' << part.getId().getIdentifier().getValue() << ' '
              << part.getChildren().size() << std::endl;
}
