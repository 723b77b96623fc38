#include <ZetoCameraGuiApi/zetogenparamtreeview.h>

#include <QApplication>

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const ZetoGui::ZetoGenParamTreeView view;
    return view.visibility() == ZetoGui::Basic ? 0 : 1;
}
