#pragma once

// Every record of the game, one header an area.
