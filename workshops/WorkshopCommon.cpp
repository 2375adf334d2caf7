// The workshop windows' shared routines.
#include "workshops/WorkshopCommon.h"

#include <algorithm>

#include "files/PictureFiles.h"
#include "files/SavePath.h"
#include "platform/Form.h"
#include "ui/WorkshopExplorer.h"

namespace qp {

namespace {
constexpr int vbKeyControl = 17;
}

QString explorerSelection(const WorkshopExplorer& x) {
  const QString name = x.File1.FileName();
  return name.isEmpty() ? QString() : joinPath(x.File1.Path, name);
}

void wireWorkshopExplorer(WorkshopExplorer& x, const Prop<Colour>& backdrop) {
  x.Drive1.Change = [&x] { trap([&] { x.Dir1.Path = x.Drive1.Drive.get(); }); };
  x.Dir1.Change = [&x] { trap([&] { x.File1.Path = x.Dir1.Path.get(); }); };
  x.File1.MouseDown = [&x, &backdrop](int button, int, Single, Single) {
    if (button != vbLeftButton) return;
    // A file that cannot be decoded leaves the preview as it was.
    trap([&] {
      const QString path = explorerSelection(x);
      if (path.isEmpty()) return;
      x.preview.Picture = LoadPicture(path, backdrop);
      x.preview.touch();
    });
  };
  x.cPatt.Click = [&x] {
    trap([&] {
      if (x.File1.Pattern == QString("*.bmp")) x.File1.Pattern = "*.jpg";
      else if (x.File1.Pattern == QString("*.jpg")) x.File1.Pattern = "*.bmp";
    });
  };
}

void tellOnHover(VisualControl& c, Label& help, const QString& text) {
  c.MouseMove = [&help, text](int, int, Single, Single) { help.Caption = text; };
}

void trackCtrlKey(Form& f, Integer& CtrlDown) {
  f.KeyDown = [&CtrlDown](int& KeyCode, int Shift) {
    if (KeyCode == vbKeyControl || (Shift & vbCtrlMask)) CtrlDown = -1;
  };
  f.KeyUp = [&CtrlDown](int& KeyCode, int) {
    if (KeyCode == vbKeyControl) CtrlDown = 0;
  };
}

bool adviseScreen(Session& s) {
  if (s.rt.screen.Width() >= 15360) return false;
  s.rt.msgbox.MsgBox("1024x768 Screen Resolution is recommended", vbOKOnly, "Optimize Display...");
  return true;
}

QString fileNameOf(const QString& path) {
  const int cut = static_cast<int>(std::max(path.lastIndexOf('/'), path.lastIndexOf('\\')));
  return path.mid(cut + 1);
}

}  // namespace qp
