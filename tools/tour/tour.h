// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "album.h"
#include "drivescenario.h"
#include "sampleimage.h"
#include "user.h"

// What a tour works with. One function per part of the program, each in a file of its own, called
// one after another; a new page adds one. All of them run beside the user-interface thread and
// throw TourFailure when a step cannot be done or comes out wrong.
struct Tour
{
    const User& user;
    Album& album;
    // The user's home folder: made for the tour, removed after it.
    QString home;
    // In it.
    SampleImage sample;
    // Nobody's disks are touched: the tools that deal with drives are stand-ins in every tour.
    DriveScenario& drives;
};

// The home screen, the application menu, the about box. Leaves the home screen.
void tourHome(Tour& tour);
// The Extract page with a real image. Leaves the home screen.
void tourExtract(Tour& tour);
// The Create page: what the sample image was made of, made into an image. Leaves the home screen.
void tourCreate(Tour& tour);
// The Edit page: the sample image changed and saved as a new one. Leaves the home screen.
void tourEdit(Tour& tour);
// The Burn page: a scripted disc burnt and a scripted stick written, with the real archiver. Leaves
// the home screen.
void tourBurn(Tour& tour);
// The Copy Disk page: an image of a scripted disc. Leaves the home screen.
void tourDiscCopy(Tour& tour);
