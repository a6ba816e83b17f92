#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/PictureBox.h"

#include <QScrollBar>

/// Shows the large board, which is moved behind a viewport with the mouse or with two bars. It only looks: nothing on
/// the board changes. All in twips.
///
///     +--PicCont--+............         PicCont stays, SlidePic goes to the left and up by at most MaxX and MaxY, and
///     |           |   SlidePic :        with the bars 30 further.
///     +-----------+            :
///     :........................:
class ShowPuzzel : public Form
{
public:
    /// Raises Fout::Overloop when the board is too wide for MaxX: from 23 cells on.
    ShowPuzzel();

    // The pointer on the picture. They raise Fout::Overloop when it is further off than the variables hold; all stays
    // as it is then.
    void SlidePic_MouseDown(double x, double y);
    void SlidePic_MouseMove(Qt::MouseButtons knoppen, double x, double y);
    void VScroll_Change();
    void HScroll_Change();
    void ExitKnop_Click();

    PictureBox *PicCont, *SlidePic;
    QScrollBar *VScroll, *HScroll;
    Label *Label1, *Label2, *Label3;
    ImageButton *ExitKnop;

    qint16 DragX = 0; ///< where the last press on the picture was, on the picture
    qint32 DragY = 0;
    qint16 NewLeft = 0; ///< where the picture is since its last move; 0 or negative
    qint32 NewTop = 0;
    qint16 MaxX = 0; ///< how far it can be dragged
    qint32 MaxY = 0;

protected:
    void wheelEvent(QWheelEvent *event) override;
};
