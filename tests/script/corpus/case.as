// versions: 5-8
// Names differ by case from version 7 on.
Value = 1;
value = 2;
trace(Value);    //=-6 2
                 //=7+ 1
Obj = {Part: 1};
trace(Obj.Part); //= 1
trace(Obj.part); //=-6 1
                 //=7+ undefined
function F() { return "F"; }
function f() { return "f"; }
trace(F());      //=-6 f
                 //=7+ F
// A function of its own hides a class of the player, as far as the names are one.
function sound(x) { return "own " + x; }
trace(Sound("s"));          //=-6 own s
                            //=7+ null
