// bare_window: the simplest Qt window, as large as the display. It ends after its first paint; with
// --stay it stays open. The programs are measured against it.
#include <QApplication>
#include <QWidget>

namespace {

class BareWindow : public QWidget {
public:
    bool painted = false;

protected:
    void paintEvent(QPaintEvent *) override { painted = true; }
};

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    BareWindow window;
    window.showMaximized();
    const bool stays = application.arguments().contains(QStringLiteral("--stay"));
    while (stays || !window.painted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return 0;
}
