#pragma once
// How the computer (green) plays four in a row against the pupil (red). Every free cell is scored
// for both sides: in each of the four line directions the room on either side of the cell (up to
// three cells that the opponent does not hold; the margin counts as room) must add to more than 2
// for a four to be possible there, and the cell's score is the most own pieces standing next to it
// in such a line, counted on both sides of the cell (3: taking the cell completes four). The
// computer then wins if it can, blocks a pupil's win, and otherwise builds on its own or the
// pupil's best lines, breaking ties by how many directions it could still build four through the
// cell. Only when no cell scores anything does it pick a cell at random.
#include "games/FourRowBoard.h"

namespace nb::fourrow {

struct Evaluation
{
    int redBest = 0, greenBest = 0;
};

// Scores every free cell for both sides into their status codes and returns each side's best.
Evaluation evaluate(FourRowBoard &board);

// The number of directions (0 to 4) in which `side` could still make four through the cell.
int openDirections(const FourRowBoard &board, int row, int col, Owner side);

struct Move
{
    Cell cell;
    int rule = 0; // 1 win, 2 block, 3..6 build on a score of 2 or 1, 7 random, 8 first free cell
};

// The computer's move on a board with at least one free cell: scores the board, writes the
// tie-break scores of the candidate cells, and picks a cell by the first rule that applies. The
// random rule draws a row and a column (Int(Rnd x 6 + 4) each) up to 36 times; if every draw hits a
// claimed cell the first free cell in scan order is taken, so the computer always moves.
Move chooseMove(FourRowBoard &board, const Draw &draw);

} // namespace nb::fourrow
