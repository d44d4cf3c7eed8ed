#include <QtCore/QTimer>
#include <QtWidgets/QApplication>

namespace {

char* volatile s_block = nullptr;

} // namespace

// Loses a block in a slot called by the event loop, where Qt's own frames are on the stack.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QTimer::singleShot(0, &application, [] {
        s_block = new char[4242];
        s_block = nullptr;
        QApplication::quit();
    });
    return QApplication::exec();
}
