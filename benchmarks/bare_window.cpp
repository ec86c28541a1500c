// The least a Qt program can do: one button in a window. The calculator's start is compared with it.
#include <QApplication>
#include <QMainWindow>
#include <QPushButton>

int main(int argc, char** argv) {
  qputenv("QT_IM_MODULE", "none");
  QApplication application(argc, argv);
  QMainWindow window;
  QPushButton button("7");
  window.setCentralWidget(&button);
  window.show();
  return application.exec();
}
