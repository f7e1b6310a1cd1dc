// Style sheets are bundled by importing them.
declare module "*.css";
