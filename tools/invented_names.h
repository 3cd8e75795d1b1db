// Names that invented contests are made of. Any likeness to real people and places is chance.
#pragma once

#include <array>
#include <string_view>

namespace scorvane {

inline constexpr std::array<std::string_view, 60> kFirstNames = {
    "Abby",   "Adam",  "Alma",  "Amos", "Anna",  "Asher", "Beth",   "Brady",   "Brooke", "Caleb",
    "Carla",  "Casey", "Clara", "Clay", "Cody",  "Cora",  "Dana",   "Dean",    "Delia",  "Dylan",
    "Edith",  "Elena", "Eli",   "Emma", "Ethan", "Faith", "Felix",  "Garrett", "Grace",  "Gus",
    "Hallie", "Hank",  "Hope",  "Ida",  "Isaac", "Ivy",   "Jada",   "Jesse",   "Jonah",  "Josie",
    "Kate",   "Kyle",  "Lena",  "Levi", "Luke",  "Mae",   "Marcus", "Mia",     "Nora",   "Owen",
    "Paige",  "Quinn", "Reese", "Rosa", "Sadie", "Seth",  "Tess",   "Trent",   "Wade",   "Willa"};

inline constexpr std::array<std::string_view, 72> kLastNames = {
    "Abbott",    "Alvarez",  "Ashford",  "Barlow",   "Beck",     "Berglund", "Bishop",   "Brandt",
    "Cadwell",   "Calder",   "Carver",   "Castillo", "Chandler", "Cole",     "Corbin",   "Dalton",
    "Delgado",   "Drummond", "Eastman",  "Ellison",  "Engel",    "Farrow",   "Fletcher", "Foss",
    "Garner",    "Gentry",   "Grady",    "Hale",     "Hansen",   "Harlan",   "Hatcher",  "Holt",
    "Ibarra",    "Ingram",   "Jarvis",   "Jensen",   "Keller",   "Kimball",  "Kirby",    "Lambert",
    "Lang",      "Larkin",   "Lindgren", "Lowery",   "Madsen",   "Marsh",    "McBride",  "Mendez",
    "Novak",     "Oakley",   "Olson",    "Ortega",   "Parrish",  "Pruitt",   "Quigley",  "Ramsey",
    "Reyes",     "Rollins",  "Sandoval", "Schaefer", "Shelton",  "Stroud",   "Tanner",   "Thorne",
    "Underhill", "Vance",    "Vogel",    "Walden",   "Weaver",   "Whitlock", "Yates",    "Zeller"};

inline constexpr std::array<std::string_view, 40> kCounties = {
    "Alder",      "Antler",     "Ash Hollow",    "Bluestem",    "Bridger",    "Buckhorn",
    "Cedar Fork", "Clearwater", "Clover",        "Cottonwood",  "Coyote",     "Dry Creek",
    "Eagle Rock", "Elk Ridge",  "Fairfield",     "Flint Hills", "Fox River",  "Grassland",
    "Greenbrier", "Harvest",    "Hickory",       "Juniper",     "Lone Oak",   "Meadowlark",
    "Mill Run",   "North Fork", "Orchard",       "Pioneer",     "Plum Creek", "Prairie",
    "Quarry",     "Red Butte",  "Rolling Hills", "Sagebrush",   "Sandhill",   "Stillwater",
    "Sunflower",  "Tallgrass",  "Walnut",        "Willow Bend"};

/// A scoring category and the classes judged in it.
struct Species {
  std::string_view name;
  std::array<std::string_view, 5> classes;
};

inline constexpr std::array<Species, 6> kSpecies = {{
    {"Beef",
     {"Market Steers", "Angus Heifers", "Hereford Bulls", "Crossbred Heifers", "Simmental Cows"}},
    {"Swine",
     {"Market Hogs", "Yorkshire Gilts", "Duroc Boars", "Crossbred Barrows", "Hampshire Gilts"}},
    {"Sheep",
     {"Market Lambs", "Suffolk Ewe Lambs", "Hampshire Rams", "Yearling Ewes", "Dorset Ewe Lambs"}},
    {"Goats", {"Market Goats", "Boer Does", "Yearling Does", "Boer Bucks", "Wethers"}},
    {"Dairy",
     {"Holstein Cows", "Jersey Heifers", "Brown Swiss Cows", "Holstein Calves", "Jersey Cows"}},
    {"Horses", {"Quarter Mares", "Geldings", "Yearling Fillies", "Draft Mares", "Ponies"}},
}};

}  // namespace scorvane
