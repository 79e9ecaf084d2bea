// Exits with 0 if a window can be opened here. Without a display Qt ends the process itself.
#include <QGuiApplication>

int main(int argc, char** argv) {
  const QGuiApplication app(argc, argv);
  return QGuiApplication::primaryScreen() != nullptr ? 0 : 1;
}
